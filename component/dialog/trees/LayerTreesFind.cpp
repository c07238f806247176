// SPDX-License-Identifier: MIT
// Finding nodes in the lists.
#include "component/common/EventGuard.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/LayerTrees.h"

#include <QTreeView>

namespace Orvane {

bool LayerTrees::HasEdits(const LayerTreeList& list) const
{
    return m_isPending && IsShown(list) && !list.Chosen().IsEmpty() && m_isPending();
}

// No question here: the next letter that the user types would answer it.
void LayerTrees::Find(List list, const QString& text)
{
    Replace(
        list, [&] { At(list).Find(FindWords(text)); }, true);
}

void LayerTrees::LeaveUnfound(List list)
{
    if (At(list).HoldsOther())
        GuardAfterEvent(this, &At(list).View(), [this, list] { TryToLeaveUnfound(list); });
}

void LayerTrees::TryToLeaveUnfound(List list)
{
    LayerTreeList& target = At(list);
    if (!target.HoldsOther() || !IsShown(target) || !AskAboutChanges())
        return;
    const auto find = [&target] {
        target.KeepChosen(false);
        target.FindAgain();
    };
    Replace(list, find, true);
}

void LayerTrees::DropUnfound(LayerTreeList& list)
{
    if (list.HoldsOther())
        Replace(
            &list == m_groups ? List::Groups : List::Layers, [&] { list.FindAgain(); }, true);
}

bool LayerTrees::ChooseFirstFound(List list)
{
    return At(list).ChooseFirstFound();
}

bool LayerTrees::IsFinding(List list) const
{
    return At(list).IsFinding();
}

LayerTrees::FoundCount LayerTrees::CountFound(List list) const
{
    const LayerTreeModel& model = At(list).Model();
    return {model.Found().layerCount, model.LayerCount()};
}

} // namespace Orvane
