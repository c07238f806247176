// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTranslator;

namespace Orvane {

/// Fills the translator with Qt's own texts, as on buttons and in file dialogs, in that language ("de").
/// False where Qt has none, or none is installed: those texts stay English.
bool LoadQtTexts(QTranslator& translator, const QString& language);

} // namespace Orvane
