// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

class IStyleEditorClient;
class LayerStyle;

/// Reading properties into a record. Both raise what the host and its database raise, unchanged, and 13 (type
/// mismatch) for a column whose value is not of its type; the record is then as it was.

/// Fills all slots from the layer's row; a Null column gives a Null slot, a Null Color two of them. A layer
/// that does not exist leaves the record as it was.
void LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style);

/// Fills the record with what all layers of the group have in common, and Null where they differ; all Null
/// for a group without layers. Members whose layer does not exist count for nothing, except that a missing
/// first one leaves nothing known. Reads inside one transaction, so that one state of the database is seen.
void LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style);

} // namespace Orvane
