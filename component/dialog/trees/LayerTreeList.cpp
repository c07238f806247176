// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeList.h"

#include "component/common/EventGuard.h"
#include "component/dialog/trees/ChoosingCommands.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeIndexes.h"
#include "component/dialog/trees/NodeNameDelegate.h"
#include "component/dialog/trees/QuietView.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

bool HasAnyOf(const LayerTreeModel& model, const NodeSelection& nodes)
{
    return std::any_of(nodes.Nodes().begin(), nodes.Nodes().end(), [&model](const NodeReference& node) {
        return model.Has(node);
    });
}

} // namespace

LayerTreeList::LayerTreeList(QTreeView* view, QObject* parent)
    : QObject(parent), m_view(view), m_viewport(view->viewport()), m_model(new LayerTreeModel(this)),
      m_delegate(new NodeNameDelegate(this))
{
    SetUpView();
    Wire();
}

void LayerTreeList::SetUpView()
{
    m_view->setModel(m_model);
    m_view->setHeaderHidden(true);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
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
    connect(m_model, &QAbstractItemModel::modelReset, this, &LayerTreeList::NodesChanged);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &LayerTreeList::NodesChanged);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &LayerTreeList::NodesRead);
    connect(m_view, &QTreeView::clicked, this, &LayerTreeList::FollowClick);
    connect(m_view, &QTreeView::doubleClicked, this, &LayerTreeList::FollowDoubleClick);
    m_view->installEventFilter(this);
    m_viewport->installEventFilter(this);
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
    std::vector<qint32> expanded;
    for (const GroupEntry& group : groups) {
        if (group.expanded)
            expanded.push_back(group.groupID);
    }
    Refill([&] { m_model->SetGroups(std::move(groups)); }, std::move(expanded));
    m_view->setRootIsDecorated(true);
    emit NodesRead();
}

void LayerTreeList::ShowLayers(std::vector<LayerEntry> layers)
{
    Refill([&] { m_model->SetLayers(std::move(layers)); }, {});
    m_view->setRootIsDecorated(false);
    emit NodesRead();
}

void LayerTreeList::Refill(const std::function<void()>& fill, std::vector<qint32> expandedGroups)
{
    const QScopedValueRollback quiet(m_quiet, true);
    if (m_model->HasNodes())
        m_place = LayerTreePlace(*m_view, CurrentNode());
    m_model->Keep(m_keepsChosen ? m_chosen : NodeSelection());
    fill();
    m_stale = false;
    if (IsFinding())
        m_before.expandedGroups = std::move(expandedGroups);
    else
        Expand(expandedGroups);
    LayOut();
    FindChosenAgain();
    m_place.ScrollBack(*m_view);
}

// A reset has postponed the layout, so expanding only records the group; one layout then serves all groups.
void LayerTreeList::Expand(const std::vector<qint32>& groupIDs)
{
    for (qint32 groupID : groupIDs)
        m_view->expand(IndexOf({.isGroup = true, .groupID = groupID}));
}

// Expanding all groups lays out all nodes, and one layout is enough.
void LayerTreeList::LayOut()
{
    if (IsFinding() && m_model->Found().rows.GroupCount() > 0)
        m_view->expandAll();
    else
        m_view->doItemsLayout();
}

void LayerTreeList::FindChosenAgain()
{
    if (m_wanted.IsEmpty() || ChooseWanted())
        return;
    const bool isHidden = IsFinding() && HasAnyOf(*m_model, m_wanted);
    const QModelIndex index = isHidden ? QModelIndex() : m_place.NodeNear(*m_view);
    if (index.isValid())
        MakeCurrent(NodeIndexes::NodeAt(index));
    else if (!isHidden)
        m_wanted = {};
}

// Leaves what is wanted as it is; false if nothing of it is shown.
bool LayerTreeList::ChooseWanted()
{
    const NodeSelection wanted = m_wanted;
    const bool isShown = Choose(wanted);
    if (!isShown)
        m_chosen = {};
    if (IsFinding())
        m_wanted = wanted;
    return isShown;
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
    return m_chosen.IsEmpty() ? QModelIndex() : IndexOf(m_chosen.Current());
}

bool LayerTreeList::MakeCurrent(const NodeReference& node)
{
    const QModelIndex index = IndexOf(node);
    if (!index.isValid())
        return false;
    m_chosen = NodeSelection(node);
    m_wanted = m_chosen;
    Select(index);
    return true;
}

bool LayerTreeList::Choose(const NodeSelection& nodes)
{
    return nodes.IsMany() ? ChooseMany(nodes) : !nodes.IsEmpty() && MakeCurrent(nodes.Current());
}

bool LayerTreeList::ChooseMany(const NodeSelection& nodes)
{
    NodeSelection selected = NodeSelection::Of(*m_view);
    if (!selected.HasSameNodes(nodes)) {
        const QItemSelection ranges = nodes.RangesIn(*m_view);
        if (ranges.isEmpty())
            return false;
        const QModelIndex first = ranges.front().topLeft();
        const QModelIndex current = IndexOf(nodes.Current());
        SelectMany(ranges, current.isValid() ? current : first);
        selected = NodeSelection::Of(*m_view);
    }
    m_chosen = std::move(selected);
    m_wanted = m_chosen;
    return true;
}

void LayerTreeList::RefuseChoice()
{
    m_refusing = true;
    SelectChosen();
    QMetaObject::invokeMethod(
        this, [this] { m_refusing = false; }, Qt::QueuedConnection);
}

void LayerTreeList::SelectChosen()
{
    if (m_chosen.IsMany())
        SelectMany(m_chosen.RangesIn(*m_view), CurrentIndex());
    else
        Select(CurrentIndex());
}

void LayerTreeList::Select(const QModelIndex& index)
{
    SelectMany(QItemSelection(index, index), index);
}

void LayerTreeList::SelectMany(const QItemSelection& ranges, const QModelIndex& current)
{
    const QScopedValueRollback quiet(m_quiet, true);
    const QuietView quietView(*m_view, ranges);
    if (m_view->currentIndex() != current)
        m_view->setCurrentIndex(current); // Shift then selects from here
    ChoosingCommands::Select(*m_view, ranges, current);
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
    if (m_quiet || m_isDrawing)
        return;
    const NodeSelection selected = NodeSelection::Of(*m_view);
    if (selected.IsEmpty() || m_refusing) {
        SelectChosen();
        return;
    }
    if (selected.HasSameNodes(m_chosen))
        return;
    m_pressChose = true;
    emit NodesChosen(selected);
}

// The view selects after this.
bool LayerTreeList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_viewport)
        FollowMouse(*event);
    else if (event->type() == QEvent::KeyPress || event->type() == QEvent::FocusOut)
        EndDrawing(); // the release may go elsewhere
    const bool isHint = event->type() == QEvent::Paint && IsFinding() && m_model->rowCount() == 0;
    return isHint && watched == m_viewport && GuardPaint([this] { PaintNothingFound(); });
}

void LayerTreeList::FollowMouse(const QEvent& event)
{
    if (event.type() == QEvent::MouseButtonPress) {
        m_pressChose = false;
        EndDrawing();
    } else if (event.type() == QEvent::MouseButtonDblClick) {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        m_isPlainDouble = mouse.button() == Qt::LeftButton && mouse.modifiers() == Qt::NoModifier;
    } else if (event.type() == QEvent::MouseMove) {
        const bool isPressed = static_cast<const QMouseEvent&>(event).buttons() & Qt::LeftButton;
        isPressed ? void(m_isDrawing = true) : EndDrawing();
    } else if (event.type() == QEvent::MouseButtonRelease) {
        EndDrawing();
    }
}

void LayerTreeList::EndDrawing()
{
    if (!std::exchange(m_isDrawing, false))
        return;
    QMetaObject::invokeMethod(
        this, [this] { FollowSelection(); }, Qt::QueuedConnection);
}

void LayerTreeList::FollowClick(const QModelIndex& index)
{
    if (!m_pressChose && !m_chosen.IsEmpty() && IsSameNode(m_chosen.Current(), NodeIndexes::NodeAt(index)))
        emit CurrentClicked();
}

// A double click on a group expands or collapses it.
void LayerTreeList::FollowDoubleClick(const QModelIndex& index)
{
    const NodeReference node = NodeIndexes::NodeAt(index);
    const bool isChosenAlone = !m_chosen.IsMany() && m_chosen.Holds(node);
    if (m_isPlainDouble && isChosenAlone && !node.isGroup)
        emit NameEditWanted();
}

void LayerTreeList::FollowExpansion(const QModelIndex& index, bool expanded)
{
    if (!m_quiet && !IsFinding())
        emit ExpansionChanged(NodeIndexes::NodeAt(index).groupID, expanded);
}

} // namespace Orvane
