// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Orvane {

/// Asks a question that Yes and No answer; No unless the user says otherwise. The texts are shown as they
/// are.
bool Confirm(QWidget& window, const QString& title, const QString& question);

} // namespace Orvane
