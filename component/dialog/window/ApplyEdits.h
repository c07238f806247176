// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"

#include <QString>

namespace Orvane {

class LayerTrees;

/// The values of the controls when they are applied.
struct PanelEdits {
    LayerStyle style;
    qint16 quickMode = 0; ///< 1, 2 or 4; any other is not written
    QString codeText; ///< of a layer
    SelectedRendererStyle selectedStyle;
};

enum class ApplyOutcome {
    Applied,
    UnexpectedMode, ///< applied, but the group's quick mode cannot be shown
};

/// Writes the edits to the layers of one node, gives the tree nodes their new images, and has the map redrawn
/// once. node: with the image that it shows now. Raises what the database and the host raise; for a group,
/// nothing is written then.
ApplyOutcome ApplyEdits(LayerTrees& trees, const NodeReference& node, const PanelEdits& edits);

} // namespace Orvane
