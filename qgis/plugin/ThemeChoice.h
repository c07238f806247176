// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

namespace Orvane {

/// Asks the user which of the map themes to import; all are ticked at first. Returns none if the user
/// cancelled.
QStringList AskForThemes(const QStringList& themes, QWidget& window);

} // namespace Orvane
