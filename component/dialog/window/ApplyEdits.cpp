// SPDX-License-Identifier: MIT
#include "component/dialog/window/ApplyEdits.h"

#include "component/common/Component.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/window/FirstError.h"
#include "component/model/LayerCode.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>

namespace Orvane {

namespace {

bool IsSingleMode(qint16 quickMode)
{
    return quickMode == QuickMode::Normal || quickMode == QuickMode::Backdrop
        || quickMode == QuickMode::Hidden;
}

ApplyOutcome ApplyToGroup(LayerTrees& trees, const NodeReference& group, const PanelEdits& edits)
{
    ApplyGroupStyle(Client(), group.groupID, edits);
    if (edits.quickMode == group.image)
        return ApplyOutcome::Applied;
    if (!IsSingleMode(edits.quickMode))
        return ApplyOutcome::UnexpectedMode;
    trees.SetGroupImage(group.groupID, edits.quickMode);
    return ApplyOutcome::Applied;
}

void ApplyToLayer(LayerTrees& trees, const NodeReference& layer, const PanelEdits& edits)
{
    ApplyLayerStyle(Client(), layer.layerID, edits);
    FirstError errors; // the properties are stored: the map shows them even if the code is rejected
    errors.Try([&] {
        if (edits.codeText)
            SetLayerCode(Client(), layer.layerID, *edits.codeText);
    });
    if (edits.quickMode != layer.image && IsSingleMode(edits.quickMode))
        errors.Try([&] { trees.SetLayerImage(layer.layerID, edits.quickMode); });
    errors.Try([] { Client().RedrawMap(); });
    errors.Rethrow();
}

} // namespace

ApplyOutcome ApplyEdits(LayerTrees& trees, const NodeReference& node, const PanelEdits& edits)
{
    if (!node.isGroup) {
        ApplyToLayer(trees, node, edits);
        return ApplyOutcome::Applied;
    }
    const ApplyOutcome outcome = ApplyToGroup(trees, node, edits);
    Client().RedrawMap();
    return outcome;
}

} // namespace Orvane
