// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

class QMenu;
class QObject;
class QWidget;

namespace Orvane {

/// Adds the host's commands to the nodes' menu, below a separator; nothing if it has none. A command that is
/// chosen runs after the event; what the host raises is shown to the user. readLayerIDs: called if there are
/// commands, and returns the layers to run them for; none: they are disabled. context: no command runs
/// without it. view: a widget of the editor's form. Raises what the host raises.
void AddHostCommands(
    QMenu& menu, const std::function<std::vector<qint32>()>& readLayerIDs, QObject* context, QWidget& view);

} // namespace Orvane
