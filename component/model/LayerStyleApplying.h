// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <functional>

namespace Orvane {

class IStyleEditorClient;

/// Returns the number of the renderer style that is selected in the list now; Null if none is.
using SelectedRendererStyle = std::function<Value()>;

/// What is to be written to layers.
struct StyleEdits {
    LayerStyle style; ///< slots that are Null are not written, nor are name and code
    qint16 quickMode = QuickMode::Various; ///< 1, 2 or 4; any other value leaves the row's mode unchanged
    SelectedRendererStyle selectedStyle; ///< asked for the value to write, if the slot is not Null
    LayerStyle asRead = LayerStyle(); ///< the record that was edited; a new record if there was none
};

/// Writing a record to layers. Both functions raise what the host and its database raise, unchanged, and a
/// ColumnError for a slot whose value does not fit its column. Changes that are not stored by then are
/// dropped. Neither function asks for a redraw.

/// Writes the slots that are not Null to the layer's row; then calls LayerChanged and stores the row. A scale
/// that was not edited stays as it is stored, if it would be stored as another number now. A layer that does
/// not exist is skipped.
void ApplyLayerStyle(IStyleEditorClient& client, qint32 layerID, const StyleEdits& edits);

/// Does the same for every layer of the group, in one transaction: all are written, or none. LayerChanged may
/// have been called for layers whose change was then rolled back.
void ApplyGroupStyle(IStyleEditorClient& client, qint32 groupID, const StyleEdits& edits);

} // namespace Orvane
