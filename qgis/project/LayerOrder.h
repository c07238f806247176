// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QHash>
#include <QString>
#include <QtGlobal>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// The order in which a project draws its layers, as priorities: 1 is drawn on top, 255 at the bottom. Each
/// layer keeps its number; the project's order of layers follows the numbers.
///
///     auto priorities = LayerOrder::Read(project);
///     priorities[layer.id()] = 1;
///     LayerOrder::Write(project, priorities);
namespace LayerOrder {

/// The priority of a layer that was never given one.
inline constexpr qint32 DefaultPriority = 128;

/// By QGIS's layer IDs; layers that are not drawn have none. If the layers were put into another order in
/// QGIS, the numbers that contradict it are replaced by those of layers next to them, as few as possible.
QHash<QString, qint32> Read(const QgsProject& project);

/// The layer's number among those read; Null if it has none.
Value PriorityIn(const QHash<QString, qint32>& priorities, const QgsMapLayer& layer);

/// Keeps the numbers, and changes the order as little as they demand. Layers that are not named keep theirs.
void Write(QgsProject& project, const QHash<QString, qint32>& priorities);

} // namespace LayerOrder

} // namespace Orvane
