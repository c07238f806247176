// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Orvane {

/// Returns the text to show for an English text.
using TextTranslation = std::function<QString(const QString& english)>;

/// Passes every text of the form, its widgets and its actions through the translation. Each object keeps its
/// English texts in a dynamic property. MessageTable::TranslateForm lists these texts.
void TranslateFormTexts(QWidget& form, const TextTranslation& translation);

} // namespace Orvane
