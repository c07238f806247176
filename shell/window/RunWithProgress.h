// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/common/Progress.h"

#include <QString>

#include <functional>

class QWidget;

namespace Orvane {

/// Runs work in a separate thread and returns when it has ended; a dialog with progress and Cancel is shown
/// when that takes a while. The window is still painted, but accepts no input. Errors of the work, including
/// Cancelled, are raised here.
void RunWithProgress(QWidget* parent, const QString& what, const std::function<void(Progress&)>& work);

} // namespace Orvane
