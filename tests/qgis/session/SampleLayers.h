// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

class QgsProject;
class QgsVectorLayer;

namespace Orvane::Testing {

/// Fills an empty project with about thirty layers of all kinds, in groups: areas, lines and points, plain,
/// classified and by rules, with labels, joins and expressions; tables, pictures, a mesh, annotations, and
/// layers whose data are missing. folder: for the files of some, outlives the project.
void AddSampleLayers(QgsProject& project, const QTemporaryDir& folder);

/// A plain layer in memory. kind: "Polygon", "LineString", "Point" or "None".
QgsVectorLayer* NewSampleLayer(const QString& kind, const QString& name);

/// Gives the layer classes in different colours.
void ClassifySample(QgsVectorLayer& layer);
/// Gives the layer one symbol in that colour.
void PaintSample(QgsVectorLayer& layer, const QColor& colour);

} // namespace Orvane::Testing
