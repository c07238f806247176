// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"

#include <QString>

namespace Orvane {

class LayerTrees;

/// What the panel holds when it is applied.
struct PanelEdits {
    LayerStyle style;
    qint16 quickMode = 0; ///< 1, 2 or 4; any other is not written
    QString codeText; ///< of a layer
    SelectedRendererStyle selectedStyle;
};

/// Writes the panel's edits to the layers of one node, gives the nodes their new images, and has the map
/// redrawn once.
class ApplyCommand
{
public:
    enum class Outcome {
        Applied,
        UnexpectedMode, ///< applied, but the group's quick mode was none that can be shown
    };

    /// trees: not owned; outlives this object.
    explicit ApplyCommand(LayerTrees& trees) : m_trees(trees) { }

    /// node: with the image that it shows now. Raises what the database and the host raise; of a group,
    /// nothing is written then.
    Outcome Run(const NodeReference& node, const PanelEdits& edits) const;

private:
    Outcome ApplyToGroup(const NodeReference& group, const PanelEdits& edits) const;
    Outcome ApplyToLayer(const NodeReference& layer, const PanelEdits& edits) const;

    LayerTrees& m_trees;
};

} // namespace Orvane
