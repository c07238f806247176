// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/ColumnError.h"
#include "component/model/LayerTreeEntries.h"

#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

class IStyleEditorClient;
class LayerStyle;

/// A layer as it was when it was read.
struct SeenLayer {
    qint32 layerID = 0;
    quint64 fingerprint = 0; ///< LayerRowValues::Fingerprint
};

/// What a reading finds besides the properties.
struct ReadingResult {
    std::vector<SeenLayer> seen; ///< the layers that exist, in their order
    std::vector<LayerMode> modes; ///< of the layers that exist and whose mode can be read, in their order
    std::optional<ColumnError> fault; ///< the first value of the wrong type
};

/// Reading properties into a record. A value of the wrong type gives a Null slot, so that it does not hide
/// the others; the result names it. Both functions raise what the host and its database raise, unchanged; the
/// record is then unchanged.

/// Fills all slots from the layer's row. A Null column gives a Null slot; a Null Color gives two Null slots.
/// If the layer does not exist, the record is unchanged.
ReadingResult LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style);

/// Fills the record with what all layers of the group have in common, and Null where they differ or where the
/// value of one cannot be read; all slots are Null for a group without layers. Members whose layer does not
/// exist are ignored, except that a missing first member leaves all slots Null. Reads in one transaction, so
/// that all values come from one state of the database.
ReadingResult LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style);

} // namespace Orvane
