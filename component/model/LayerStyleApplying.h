// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <functional>

namespace Orvane {

class IStyleEditorClient;
class LayerStyle;

/// Returns the number of the renderer style that is selected in the list now; Null if none is.
using SelectedRendererStyle = std::function<Value()>;

/// Writing a record to layers. All functions raise what the host and its database raise, unchanged, and 13
/// (type mismatch) or 6 (overflow) for a slot whose value does not fit its column. Changes that are not
/// stored by then are dropped. No function asks for a redraw.

/// Writes the slots that are not Null to the layer's row, except name and code; then calls LayerChanged and
/// stores the row. quickMode: 1, 2 or 4 is written; any other value leaves the row's mode unchanged. The
/// renderer style is written if its slot is not Null, with the value that selectedStyle returns at that
/// moment. A layer that does not exist is skipped.
void ApplyLayerStyle(
    IStyleEditorClient& client, qint32 layerID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle);

/// Does the same for every layer of the group, in one transaction: all are written, or none. LayerChanged may
/// have been called for layers whose change was then rolled back.
void ApplyGroupStyle(
    IStyleEditorClient& client, qint32 groupID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle);

} // namespace Orvane
