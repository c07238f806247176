// SPDX-License-Identifier: MIT
// Finding nodes in the lists.
#include "component/common/EventGuard.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/LayerTrees.h"

#include <QPointer>
#include <QTreeView>

namespace Orvane {

bool LayerTrees::HasEdits(const LayerTreeList& list) const
{
    return m_isPending && IsShown(list) && !list.Chosen().IsEmpty() && m_isPending();
}

// The question comes after the event, as for a click on another node.
void LayerTrees::Find(List list, const QString& text)
{
    LayerTreeList& target = At(list);
    const bool wasHeld = target.HoldsOther();
    Replace(
        list, [&] { target.Find(FindWords(text)); }, true);
    if (!target.HoldsOther() || wasHeld)
        return;
    QMetaObject::invokeMethod(
        this, [this, list] { LeaveUnfound(list); }, Qt::QueuedConnection);
}

void LayerTrees::LeaveUnfound(List list)
{
    const QPointer<LayerTrees> self(this);
    try {
        TryToLeaveUnfound(list);
    } catch (...) {
        if (self)
            ReportAfterEvent(this, &At(list).View(), std::current_exception());
    }
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
