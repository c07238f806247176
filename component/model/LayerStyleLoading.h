// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/ColumnError.h"
#include "component/model/LayerTreeEntries.h"

#include <QSet>
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

    bool operator==(const SeenLayer&) const = default;
};

/// What a reading finds besides the properties.
struct ReadingResult {
    std::vector<SeenLayer> seen; ///< the layers that exist, in their order
    std::vector<LayerMode> modes; ///< of the layers that exist and whose mode can be read, in their order
    std::optional<ColumnError> fault; ///< the first value of the wrong type
    /// Of several layers: the first one, and for each slot in which they differ one that differs from it. As
    /// long as none of these changes, the slots that are Null stay so.
    std::vector<qint32> decisive;
};

/// Reading properties into a record. A value of the wrong type gives a Null slot, so that it does not hide
/// the others; the result names it. All functions raise what the host and its database raise, unchanged; the
/// record is then unchanged.

/// Fills all slots from the layer's row. A Null column gives a Null slot; a Null Color gives two Null slots.
/// If the layer does not exist, the record is unchanged.
ReadingResult LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style);

/// Fills the record with what these layers have in common, and Null where they differ or where the value of
/// one cannot be read; all slots are Null without layers. Layers that do not exist are ignored, except that a
/// missing first one leaves all slots Null. Reads in one transaction, so that all values come from one state
/// of the database. layerIDs: each once.
ReadingResult
LoadLayersStyle(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, LayerStyle& style);

/// Does the same for the layers that are stored as the group's members.
ReadingResult LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style);

/// Brings what several layers have in common, and how it was found, up to date by reading only those that
/// have changed. style and reading: as one of the functions above returned them. False if the others must be
/// read, too; both are then unchanged.
bool RereadLayersStyle(
    IStyleEditorClient& client, const QSet<qint32>& changed, LayerStyle& style, ReadingResult& reading);

} // namespace Orvane
