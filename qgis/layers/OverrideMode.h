// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// The quick mode of a layer, as OverrideMode stores it: 0 normal, 1 backdrop, 2 hidden. A mode that the user
/// has ended in QGIS, by another opacity or by a tick, is 0.
qint32 ReadOverrideMode(const QgsMapLayer& layer, const QgsProject& project);

/// Backdrop lowers the layer's opacity to 0.35 of what it was, hidden unticks it; each mode first takes back
/// the one before. Any other number than 1 and 2 means normal.
void WriteOverrideMode(QgsMapLayer& layer, const QgsProject& project, qint32 mode);

} // namespace Orvane
