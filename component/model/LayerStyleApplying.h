// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <functional>

namespace Orvane {

class IStyleEditorClient;
class LayerStyle;

/// Answers the number of the renderer style that is selected in the list right now; Null when none is.
using SelectedRendererStyle = std::function<Value()>;

/// Writing a record to layers. All raise what the host and its database raise, unchanged, and 13 (type
/// mismatch) or 6 (overflow) for a slot that does not hold what its column takes; what was not stored by then
/// is dropped. None of them asks for a redraw.

/// Writes the slots that are not Null to the layer's row, name and code excepted; then calls LayerChanged,
/// and stores. quickMode: 1, 2 or 4 is written, any other leaves the row's. The renderer style is written
/// when its slot is not Null, with the value that selectedStyle answers at that moment. A layer that does not
/// exist is left out.
void ApplyLayerStyle(
    IStyleEditorClient& client, qint32 layerID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle);

/// The same for every layer of the group, in one transaction: all are written, or none. LayerChanged may have
/// been called for layers whose change was then undone.
void ApplyGroupStyle(
    IStyleEditorClient& client, qint32 groupID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle);

} // namespace Orvane
