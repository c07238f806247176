// SPDX-License-Identifier: MIT
// How the panel follows what others change in the layers that it shows.
#include "component/common/Component.h"
#include "component/dialog/window/LayerCommands.h"
#include "component/dialog/window/QuickModeToolbar.h"
#include "component/dialog/window/SelectionEditor.h"
#include "component/model/CommonMode.h"

#include <algorithm>

namespace Orvane {

void SelectionEditor::Follow()
{
    if (!m_modified || !HoldsChosenNodes())
        Load();
    else
        FollowTo(Read());
}

void SelectionEditor::FollowTo(const Selection& selection)
{
    const Origin before = m_origin;
    Keep(selection);
    KeepOriginOfEdits(before);
    const auto unshown = m_parts.panel.Follow(selection.record);
    m_parts.quickModes.FollowMode(selection.target.node->image);
    if (IsMany())
        ShowCommands(selection);
    else
        m_parts.commands.Follow(selection.target.node, selection.record, selection.isSystemLayer);
    ReportFault(selection, unshown);
}

void SelectionEditor::FollowLayers(const QSet<qint32>& layerIDs)
{
    if (!HasLayerOf(layerIDs))
        return;
    Selection selection = m_shown;
    if (!RereadLayers(layerIDs, selection))
        Follow();
    else if (selection.reading.seen == m_shown.reading.seen)
        return;
    else if (m_modified)
        FollowTo(selection);
    else
        ShowOrNothing(selection);
}

void SelectionEditor::FollowModes(const QSet<qint32>& layerIDs)
{
    if (m_modified && !HasLayerOf(layerIDs))
        return;
    m_parts.quickModes.ShowMode(
        m_origin.mode); // a mode that is not applied yet would undo what was just done
    m_modified = m_modified && HasEditedSlot();
    Follow();
}

bool SelectionEditor::HasEditedSlot() const
{
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot) {
        if (IsEdited(slot))
            return true;
    }
    return false;
}

bool SelectionEditor::HasLayerOf(const QSet<qint32>& layerIDs) const
{
    return std::any_of(m_origin.seen.begin(), m_origin.seen.end(), [&](const SeenLayer& layer) {
        return layerIDs.contains(layer.layerID);
    });
}

bool SelectionEditor::RereadLayers(const QSet<qint32>& layerIDs, Selection& selection) const
{
    Target& target = selection.target;
    if (!HoldsChosenNodes() || !(target.nodes.IsMany() || target.node->isGroup))
        return false;
    if (!RereadLayersStyle(Client(), layerIDs, selection.record, selection.reading))
        return false;
    target.node->image = CommonMode(selection.reading.modes);
    return true;
}

// What was changed elsewhere after the user had edited it must still be found by the next apply.
void SelectionEditor::KeepOriginOfEdits(const Origin& before)
{
    bool isOlder = false;
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot) {
        const Value was = before.style.lsGet(slot);
        if (!IsEdited(slot) || m_origin.style.Compare(slot, was))
            continue;
        m_origin.style.lsSet(slot, was);
        isOlder = true;
    }
    if (m_parts.quickModes.IsEdited() && m_origin.mode != before.mode) {
        m_origin.mode = before.mode;
        isOlder = true;
    }
    for (SeenLayer& layer : m_origin.seen)
        layer.fingerprint = isOlder ? 0 : layer.fingerprint; // then its values are compared
}

} // namespace Orvane
