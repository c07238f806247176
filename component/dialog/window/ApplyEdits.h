// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/model/LayerStyleApplying.h"

#include <QString>

#include <optional>
#include <vector>

namespace Orvane {

class LayerTrees;

/// The values of the controls when they are applied.
struct PanelEdits : StyleEdits {
    std::optional<QString> codeText; ///< of a layer; nothing leaves the stored code
    bool isCodeEdited = false; ///< the style's code slot is then the edited code
};

enum class ApplyOutcome {
    Applied,
    UnexpectedMode, ///< applied, but the quick mode of several layers cannot be shown
    Gone, ///< nothing was written: the layers no longer exist, or the group has none
    Conflicts, ///< nothing was written: edited values were changed elsewhere
};

struct AppliedEdits {
    ApplyOutcome outcome = ApplyOutcome::Applied;
    std::vector<EditConflict> conflicts;
};

/// Writes the edits to the layers of one node, gives the tree nodes their new images if they were written,
/// and has the map redrawn once. node: its image is the mode that its rows held when they were read. Raises
/// what the database and the host raise; for a group, nothing is written then.
AppliedEdits ApplyEdits(LayerTrees& trees, const NodeReference& node, const PanelEdits& edits);

/// The same for several layers; all are written, or none. mode: the one that their rows had in common when
/// they were read, or various.
AppliedEdits
ApplyEdits(LayerTrees& trees, const std::vector<qint32>& layerIDs, qint16 mode, const PanelEdits& edits);

} // namespace Orvane
