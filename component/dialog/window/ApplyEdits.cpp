// SPDX-License-Identifier: MIT
#include "component/dialog/window/ApplyEdits.h"

#include "component/common/Component.h"
#include "component/common/FirstError.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/model/LayerCode.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>

#include <utility>

namespace Orvane {

namespace {

bool IsSingleMode(qint16 quickMode)
{
    return quickMode == QuickMode::Normal || quickMode == QuickMode::Backdrop
        || quickMode == QuickMode::Hidden;
}

template <typename ShowMode>
AppliedEdits FinishMany(ApplyResult result, qint16 mode, const PanelEdits& edits, ShowMode showMode)
{
    if (!result.conflicts.empty())
        return {ApplyOutcome::Conflicts, std::move(result.conflicts)};
    if (result.layers == 0)
        return {ApplyOutcome::Gone, {}};
    if (edits.quickMode == mode)
        return {};
    if (!IsSingleMode(edits.quickMode))
        return {ApplyOutcome::UnexpectedMode, {}};
    showMode();
    return {};
}

AppliedEdits ApplyToGroup(LayerTrees& trees, const NodeReference& group, const PanelEdits& edits)
{
    const auto showMode = [&] { trees.SetGroupImage(group.groupID, edits.quickMode); };
    return FinishMany(ApplyGroupStyle(Client(), group.groupID, edits), group.image, edits, showMode);
}

AppliedEdits
ApplyToLayers(LayerTrees& trees, const std::vector<qint32>& layerIDs, qint16 mode, const PanelEdits& edits)
{
    const auto showMode = [&] {
        std::vector<LayerMode> modes;
        modes.reserve(layerIDs.size());
        for (const qint32 layerID : layerIDs)
            modes.push_back({layerID, edits.quickMode});
        trees.SetLayerImages(modes);
    };
    return FinishMany(ApplyLayersStyle(Client(), layerIDs, edits), mode, edits, showMode);
}

bool StoresCode(const PanelEdits& edits, const ApplyResult& result)
{
    return edits.codeText && (edits.isCodeEdited || !result.isCodeChanged);
}

AppliedEdits ApplyToLayer(LayerTrees& trees, const NodeReference& layer, const PanelEdits& edits)
{
    ApplyResult result = ApplyLayerStyle(Client(), layer.layerID, edits);
    if (!result.conflicts.empty())
        return {ApplyOutcome::Conflicts, std::move(result.conflicts)};
    if (result.layers == 0) {
        Client().RedrawMap();
        return {ApplyOutcome::Gone, {}};
    }
    FirstError errors; // the properties are stored: the map shows them even if the code is rejected
    errors.Try([&] {
        if (StoresCode(edits, result))
            SetLayerCode(Client(), layer.layerID, *edits.codeText);
    });
    if (edits.quickMode != layer.image && IsSingleMode(edits.quickMode))
        errors.Try([&] { trees.SetLayerImage(layer.layerID, edits.quickMode); });
    errors.Try([] { Client().RedrawMap(); });
    errors.Rethrow();
    return {};
}

} // namespace

AppliedEdits ApplyEdits(LayerTrees& trees, const NodeReference& node, const PanelEdits& edits)
{
    if (!node.isGroup)
        return ApplyToLayer(trees, node, edits);
    AppliedEdits applied = ApplyToGroup(trees, node, edits);
    if (applied.outcome != ApplyOutcome::Conflicts)
        Client().RedrawMap();
    return applied;
}

AppliedEdits
ApplyEdits(LayerTrees& trees, const std::vector<qint32>& layerIDs, qint16 mode, const PanelEdits& edits)
{
    AppliedEdits applied = ApplyToLayers(trees, layerIDs, mode, edits);
    if (applied.outcome != ApplyOutcome::Conflicts)
        Client().RedrawMap();
    return applied;
}

} // namespace Orvane
