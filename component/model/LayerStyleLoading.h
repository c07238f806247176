// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

class IStyleEditorClient;
class LayerStyle;

/// Reading properties into a record. Both functions raise what the host and its database raise, unchanged,
/// and 13 (type mismatch) for a column whose value has the wrong type; the record is then unchanged.

/// Fills all slots from the layer's row. A Null column gives a Null slot; a Null Color gives two Null slots.
/// If the layer does not exist, the record is unchanged.
void LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style);

/// Fills the record with what all layers of the group have in common, and Null where they differ; all slots
/// are Null for a group without layers. Members whose layer does not exist are ignored, except that a missing
/// first member leaves all slots Null. Reads in one transaction, so that all values come from one state of
/// the database.
void LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style);

} // namespace Orvane
