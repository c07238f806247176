// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeList.h"

#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeIndexes.h"
#include "component/dialog/trees/NodeNameDelegate.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QTreeView>

#include <utility>

namespace Orvane {

LayerTreeList::LayerTreeList(QTreeView* view, QObject* parent)
    : QObject(parent), m_view(view), m_model(new LayerTreeModel(this)), m_delegate(new NodeNameDelegate(this))
{
    SetUpView();
    Wire();
}

void LayerTreeList::SetUpView()
{
    m_view->setModel(m_model);
    m_view->setHeaderHidden(true);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed);
}

void LayerTreeList::Wire()
{
    m_view->setItemDelegate(m_delegate);
    // Later: a message box over an open editor would end the edit a second time.
    connect(
        m_delegate, &NodeNameDelegate::NameEntered, this,
        [this](const NodeReference& node, const QString& name) {
            m_entered = EnteredName{node, name};
            QMetaObject::invokeMethod(
                this, [this] { TellName(); }, Qt::QueuedConnection);
        });
    connect(
        m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &LayerTreeList::FollowSelection);
    connect(m_view, &QTreeView::clicked, this, &LayerTreeList::FollowClick);
    m_view->viewport()->installEventFilter(this);
    connect(m_view, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        FollowExpansion(index, true);
    });
    connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        FollowExpansion(index, false);
    });
}

void LayerTreeList::TellName()
{
    if (const std::optional<EnteredName> entered = std::exchange(m_entered, std::nullopt))
        emit NameEntered(entered->node, entered->name);
}

void LayerTreeList::FinishNameEdit()
{
    m_delegate->FinishEdit();
    TellName();
}

void LayerTreeList::DropNameEdit()
{
    m_delegate->DropEdit();
    m_entered.reset();
}

bool LayerTreeList::NeedsLoad() const
{
    return m_stale || !m_model->HasNodes();
}

void LayerTreeList::ShowGroups(std::vector<GroupEntry> groups)
{
    std::vector<int> expandedRows;
    for (size_t row = 0; row < groups.size(); ++row) {
        if (groups[row].expanded)
            expandedRows.push_back(int(row));
    }
    Refill([&] { m_model->SetGroups(std::move(groups)); }, expandedRows);
    m_view->setRootIsDecorated(true);
}

void LayerTreeList::ShowLayers(std::vector<LayerEntry> layers)
{
    Refill([&] { m_model->SetLayers(std::move(layers)); }, {});
    m_view->setRootIsDecorated(false);
}

void LayerTreeList::Refill(const std::function<void()>& fill, const std::vector<int>& expandedRows)
{
    const QScopedValueRollback quiet(m_quiet, true);
    if (m_model->HasNodes())
        m_place = LayerTreePlace(*m_view, m_current);
    fill();
    m_stale = false;
    // The reset has postponed the layout, so expanding only records the group; one layout then serves all
    // groups.
    for (int row : expandedRows)
        m_view->expand(IndexOf(m_model->Reference(m_model->index(row, 0))));
    m_view->doItemsLayout();
    FindCurrentAgain();
    m_place.ScrollBack(*m_view);
}

void LayerTreeList::FindCurrentAgain()
{
    if (!m_current)
        return;
    QModelIndex index = CurrentIndex();
    if (!index.isValid())
        index = m_place.NodeNear(*m_view);
    m_current.reset();
    if (index.isValid())
        MakeCurrent(NodeIndexes::NodeAt(index));
}

std::optional<NodeReference> LayerTreeList::CurrentNode() const
{
    const QModelIndex index = CurrentIndex();
    return index.isValid() ? std::optional(NodeIndexes::NodeAt(index)) : std::nullopt;
}

QString LayerTreeList::CurrentText() const
{
    return CurrentIndex().data().toString();
}

QModelIndex LayerTreeList::IndexOf(const NodeReference& node) const
{
    return NodeIndexes::IndexOf(*m_view, node);
}

QModelIndex LayerTreeList::CurrentIndex() const
{
    return m_current ? IndexOf(*m_current) : QModelIndex();
}

bool LayerTreeList::MakeCurrent(const NodeReference& node)
{
    const QModelIndex index = IndexOf(node);
    if (!index.isValid())
        return false;
    m_current = node;
    Select(index);
    return true;
}

void LayerTreeList::RefuseChoice()
{
    m_refusing = true;
    SelectCurrent();
    QMetaObject::invokeMethod(
        this, [this] { m_refusing = false; }, Qt::QueuedConnection);
}

void LayerTreeList::SelectCurrent()
{
    Select(CurrentIndex());
}

// Without automatic scrolling, which would also expand the node's group.
void LayerTreeList::Select(const QModelIndex& index)
{
    const QScopedValueRollback quiet(m_quiet, true);
    const bool scrolls = m_view->hasAutoScroll();
    m_view->setAutoScroll(false);
    m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    m_view->setAutoScroll(scrolls);
}

void LayerTreeList::ScrollToCurrent()
{
    const QModelIndex index = CurrentIndex();
    if (index.isValid())
        m_view->scrollTo(index);
}

std::vector<qint32> LayerTreeList::GroupsWithout(bool expanded) const
{
    std::vector<qint32> groupIDs;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const NodeReference group = m_model->Reference(m_model->index(row, 0));
        if (m_view->isExpanded(IndexOf(group)) != expanded)
            groupIDs.push_back(group.groupID);
    }
    return groupIDs;
}

void LayerTreeList::SetAllExpanded(bool expanded)
{
    const QScopedValueRollback quiet(m_quiet, true);
    const QModelIndex current = m_view->currentIndex();
    if (!expanded)
        m_view->collapse(
            current.parent()); // collapseAll() does not end the delayed scroll to a pressed layer
    expanded ? m_view->expandAll() : m_view->collapseAll();
    m_view->scrollTo(expanded || !current.parent().isValid() ? current : current.parent());
}

void LayerTreeList::FollowSelection()
{
    if (m_quiet)
        return;
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    if (selected.isEmpty() || m_refusing) {
        SelectCurrent();
        return;
    }
    const NodeReference node = NodeIndexes::NodeAt(selected.first());
    if (m_current && IsSameNode(*m_current, node))
        return;
    m_pressChose = true;
    emit NodeChosen(node);
}

bool LayerTreeList::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_pressChose = false; // the view selects after this
    return false;
}

void LayerTreeList::FollowClick(const QModelIndex& index)
{
    if (!m_pressChose && m_current && IsSameNode(*m_current, NodeIndexes::NodeAt(index)))
        emit CurrentClicked();
}

void LayerTreeList::FollowExpansion(const QModelIndex& index, bool expanded)
{
    if (!m_quiet)
        emit ExpansionChanged(NodeIndexes::NodeAt(index).groupID, expanded);
}

} // namespace Orvane
