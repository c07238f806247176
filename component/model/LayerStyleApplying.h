// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleLoading.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <functional>
#include <vector>

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
    qint16 modeAsRead = QuickMode::Various;
    std::vector<SeenLayer> seen = {}; ///< the layers as they were read; empty: they are not compared
    bool overwrites = false; ///< edited values are written over those that were changed meanwhile
};

/// A property that was edited here and changed elsewhere since it was read.
struct EditConflict {
    static constexpr qint16 Mode = -1; ///< stands for the quick mode

    qint16 slot = 0;
    Value stored; ///< what is stored now, in the first such layer; a quick mode as 1, 2 or 4
    int layers = 0; ///< how many layers hold another value than the one that was read
};

/// What writing did.
struct ApplyResult {
    int layers = 0; ///< how many were written
    std::vector<EditConflict> conflicts; ///< if there are any, nothing was written
    bool isCodeChanged = false; ///< a layer has another code now than when it was read
};

/// Writing a record to layers. All functions raise what the host and its database raise, unchanged, and a
/// ColumnError for a slot whose value does not fit its column. Changes that are not stored by then are
/// dropped. None asks for a redraw.

/// Writes the slots that are not Null to the layer's row; then calls LayerChanged and stores the row. A scale
/// that was not edited stays as it is stored, if it would be stored as another number now; so does every
/// value that was not edited and that was changed since it was read. A layer that does not exist is skipped.
ApplyResult ApplyLayerStyle(IStyleEditorClient& client, qint32 layerID, const StyleEdits& edits);

/// Does the same for these layers, in one transaction: all are written, or none. LayerChanged may have been
/// called for layers whose change was then rolled back. layerIDs: each once.
ApplyResult
ApplyLayersStyle(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, const StyleEdits& edits);

/// Does the same for the layers that are stored as the group's members now.
ApplyResult ApplyGroupStyle(IStyleEditorClient& client, qint32 groupID, const StyleEdits& edits);

/// Writes nothing but the quick modes (1, 2 or 4), in one transaction, as ApplyLayersStyle does. modes: each
/// layer once.
void ApplyQuickModes(IStyleEditorClient& client, const std::vector<LayerMode>& modes);

} // namespace Orvane
