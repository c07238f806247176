// SPDX-License-Identifier: MIT
#include "component/dialog/window/ApplyCommand.h"

#include "component/common/Component.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/window/FirstError.h"
#include "component/model/LayerCode.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

namespace Orvane {

namespace {

bool IsSingleMode(qint16 quickMode)
{
    return quickMode == 1 || quickMode == 2 || quickMode == 4;
}

} // namespace

ApplyCommand::Outcome ApplyCommand::Run(const NodeReference& node, const PanelEdits& edits) const
{
    if (!node.isGroup)
        return ApplyToLayer(node, edits);
    const Outcome outcome = ApplyToGroup(node, edits);
    Client().RedrawMap();
    return outcome;
}

ApplyCommand::Outcome ApplyCommand::ApplyToGroup(const NodeReference& group, const PanelEdits& edits) const
{
    ApplyGroupStyle(Client(), group.groupID, edits.style, edits.quickMode, edits.selectedStyle);
    if (edits.quickMode == group.image)
        return Outcome::Applied;
    if (!IsSingleMode(edits.quickMode))
        return Outcome::UnexpectedMode;
    m_trees.SetGroupImage(group.groupID, edits.quickMode);
    return Outcome::Applied;
}

ApplyCommand::Outcome ApplyCommand::ApplyToLayer(const NodeReference& layer, const PanelEdits& edits) const
{
    ApplyLayerStyle(Client(), layer.layerID, edits.style, edits.quickMode, edits.selectedStyle);
    FirstError errors; // the properties are stored: the map shows them even when the code is refused
    errors.Try([&] { SetLayerCode(Client(), layer.layerID, edits.codeText); });
    if (edits.quickMode != layer.image && IsSingleMode(edits.quickMode))
        errors.Try([&] { m_trees.SetLayerImage(layer.layerID, edits.quickMode); });
    errors.Try([] { Client().RedrawMap(); });
    errors.Rethrow();
    return Outcome::Applied;
}

} // namespace Orvane
