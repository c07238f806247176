// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

class QgsMapLayer;

namespace Orvane {

/// Whether features can be pointed at, and asked about: QGIS's "Identifiable" is both. One alone is kept as
/// long as the layer is not identifiable.
struct PointingFlags {
    bool hitable = true; ///< the column Hitable
    bool enquirable = true; ///< the column Enquirable
};

/// Both flags as they are kept; if the user has changed "Identifiable" in QGIS since, both are that.
PointingFlags ReadPointing(const QgsMapLayer& layer);
/// Keeps both flags, and makes the layer identifiable if both are set.
void WritePointing(QgsMapLayer& layer, const PointingFlags& flags);
/// Forgets one alone when the user has changed "Identifiable" in QGIS; otherwise it would be back when the
/// user changes it again. Nothing happens to other layers.
void ForgetEndedPointing(QgsMapLayer& layer);

/// Whether the layer's features are locked: a boolean, or Null for a layer without vectors.
Value ReadLocked(const QgsMapLayer& layer);
/// False if QGIS refuses: while the layer is being edited, or for data that cannot be changed.
bool WriteLocked(QgsMapLayer& layer, bool locked);

} // namespace Orvane
