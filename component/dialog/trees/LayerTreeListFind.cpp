// SPDX-License-Identifier: MIT
// A list while the user finds nodes in it.
#include "component/common/Messages.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeNameDelegate.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QTreeView>

#include <utility>

namespace Orvane {

bool LayerTreeList::IsFinding() const
{
    return !m_model->Words().IsEmpty();
}

bool LayerTreeList::HoldsOther() const
{
    return m_model->Found().holdsOther;
}

void LayerTreeList::Find(const FindWords& words)
{
    if (!IsFinding() && words.IsEmpty())
        return;
    const QScopedValueRollback quiet(m_quiet, true);
    if (!IsFinding())
        m_before = {LayerTreePlace(*m_view, CurrentNode()), m_wanted, GroupsWithout(false)};
    m_model->Keep(m_keepsChosen ? m_chosen : NodeSelection());
    m_delegate->Mark(words);
    m_model->Find(words);
    IsFinding() ? ShowFound() : ShowAsBefore();
}

void LayerTreeList::FindAgain()
{
    const LayerTreePlace place(*m_view, CurrentNode());
    Find(FindWords(m_model->Words()));
    place.ScrollBack(*m_view);
}

void LayerTreeList::ShowFound()
{
    LayOut();
    if (!ChooseWanted())
        SelectChosen();
    m_view->scrollToTop();
}

void LayerTreeList::ShowAsBefore()
{
    const Before before = std::exchange(m_before, {});
    Expand(before.expandedGroups);
    LayOut();
    if (!ChooseWanted())
        SelectChosen();
    before.place.ScrollBack(*m_view);
    if (!m_chosen.HasSameNodes(before.wanted))
        ScrollToChosen();
}

// Expands nothing.
void LayerTreeList::ScrollToChosen()
{
    const QModelIndex current = CurrentIndex();
    const bool isFolded = current.parent().isValid() && !m_view->isExpanded(current.parent());
    if (current.isValid())
        m_view->scrollTo(isFolded ? current.parent() : current);
}

bool LayerTreeList::ChooseFirstFound()
{
    const std::optional<NodeReference> first = m_model->Found().first;
    const QModelIndex index = first ? IndexOf(*first) : QModelIndex();
    if (index.isValid())
        m_view->setCurrentIndex(index);
    return index.isValid();
}

void LayerTreeList::PaintNothingFound()
{
    QPainter painter(m_view->viewport());
    painter.setPen(m_view->palette().color(QPalette::PlaceholderText));
    const QFontMetrics metrics = m_view->fontMetrics();
    const QRect area = m_view->viewport()->rect().adjusted(
        metrics.height(), metrics.height(), -metrics.height(), -metrics.height());
    painter.drawText(
        area, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, TranslateMsg("Nothing found."));
}

} // namespace Orvane
