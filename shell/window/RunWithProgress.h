// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/common/Progress.h"

#include <QString>

#include <functional>

class QWidget;

namespace Orvane {

/// Runs work in a thread of its own and returns when it has ended; a dialog with progress and Cancel comes up
/// when that takes a while. The window stays alive, but takes no input. What the work raises, Cancelled
/// included, is raised here.
void RunWithProgress(QWidget* parent, const QString& what, const std::function<void(Progress&)>& work);

} // namespace Orvane
