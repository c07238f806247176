// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreePlace.h"

#include "component/dialog/trees/LayerTreeModel.h"

#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

namespace Orvane {

namespace {

const LayerTreeModel& ModelOf(const QTreeView& view)
{
    return *static_cast<const LayerTreeModel*>(view.model());
}

QModelIndex ChildNear(const LayerTreeModel& model, int row, const QModelIndex& parent)
{
    const int last = model.rowCount(parent) - 1;
    return row < 0 ? QModelIndex() : model.index(std::min(row, last), 0, parent);
}

} // namespace

LayerTreePlace::LayerTreePlace(const QTreeView& view, const std::optional<NodeReference>& current)
    : m_vertical(view.verticalScrollBar()->value()), m_horizontal(view.horizontalScrollBar()->value())
{
    const LayerTreeModel& model = ModelOf(view);
    const QModelIndex top = view.indexAt(QPoint(0, 0));
    if (top.isValid()) {
        m_top = model.Reference(top);
        m_topOffset = view.visualRect(top).top();
    }
    const QModelIndex index = current ? model.IndexOf(*current) : QModelIndex();
    m_row = index.row();
    m_groupRow = index.parent().row();
    if (index.parent().isValid())
        m_group = model.Reference(index.parent());
}

QModelIndex LayerTreePlace::NodeNear(const LayerTreeModel& model) const
{
    if (!m_group)
        return ChildNear(model, m_row, {});
    const QModelIndex group = model.IndexOf(*m_group);
    return group.isValid() ? ChildNear(model, m_row, group) : ChildNear(model, m_groupRow, {});
}

void LayerTreePlace::ScrollBack(QTreeView& view) const
{
    QModelIndex top = m_top ? ModelOf(view).IndexOf(*m_top) : QModelIndex();
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
