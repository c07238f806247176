// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreePlace.h"

#include "component/dialog/trees/NodeIndexes.h"

#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

namespace Orvane {

using NodeIndexes::IndexOf;
using NodeIndexes::NodeAt;

namespace {

QModelIndex ChildNear(const QTreeView& view, int row, const QModelIndex& parent)
{
    const int last = view.model()->rowCount(parent) - 1;
    return row < 0 ? QModelIndex() : view.model()->index(std::min(row, last), 0, parent);
}

} // namespace

LayerTreePlace::LayerTreePlace(const QTreeView& view, const std::optional<NodeReference>& current)
    : m_vertical(view.verticalScrollBar()->value()), m_horizontal(view.horizontalScrollBar()->value())
{
    const QModelIndex top = view.indexAt(QPoint(0, 0));
    if (top.isValid()) {
        m_top = NodeAt(top);
        m_topOffset = view.visualRect(top).top();
    }
    const QModelIndex index = current ? IndexOf(view, *current) : QModelIndex();
    m_row = index.row();
    m_groupRow = index.parent().row();
    if (index.parent().isValid())
        m_group = NodeAt(index.parent());
}

QModelIndex LayerTreePlace::NodeNear(const QTreeView& view) const
{
    if (!m_group)
        return ChildNear(view, m_row, {});
    const QModelIndex group = IndexOf(view, *m_group);
    return group.isValid() ? ChildNear(view, m_row, group) : ChildNear(view, m_groupRow, {});
}

void LayerTreePlace::ScrollBack(QTreeView& view) const
{
    QModelIndex top = m_top ? IndexOf(view, *m_top) : QModelIndex();
    if (top.parent().isValid() && !view.isExpanded(top.parent()))
        top = top.parent();
    if (top.isValid())
        view.scrollTo(top, QAbstractItemView::PositionAtTop);
    else
        view.verticalScrollBar()->setValue(m_vertical);
    if (top.isValid() && view.verticalScrollMode() == QAbstractItemView::ScrollPerPixel)
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() - m_topOffset);
    view.horizontalScrollBar()->setValue(m_horizontal);
}

} // namespace Orvane
