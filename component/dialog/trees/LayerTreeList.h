// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/LayerTreePlace.h"
#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerTreeEntries.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QTreeView;

namespace Orvane {

class LayerTreeModel;

/// One tree: a view, its nodes, and the one node that is current in it. The current node is what the owner
/// has accepted; the view's selection may run ahead of it while the owner asks the person.
///
/// Current node, selection and scroll position outlive each replacement of the nodes; a current node that is
/// gone is followed by the one that took its place.
class LayerTreeList : public QObject
{
    Q_OBJECT

public:
    /// view: not owned; outlives this object. It is set up here.
    explicit LayerTreeList(QTreeView* view, QObject* parent = nullptr);

    QTreeView& View() const { return *m_view; }
    LayerTreeModel& Model() const { return *m_model; }

    /// True when there are no nodes, or when they are out of date.
    bool NeedsLoad() const;
    void MarkStale() { m_stale = true; }

    /// Replace all nodes, by groups expanded as they say or by layers.
    void ShowGroups(std::vector<GroupEntry> groups);
    void ShowLayers(std::vector<LayerEntry> layers);

    /// The current node's identity, also while it is not among the nodes.
    const std::optional<NodeReference>& Current() const { return m_current; }
    /// The current node with the image that it shows now; nothing when it is not among the nodes.
    std::optional<NodeReference> CurrentNode() const;
    /// The current node's text; empty when it is not among the nodes.
    QString CurrentText() const;
    /// Where the node stands in the view; invalid when it is not shown.
    QModelIndex IndexOf(const NodeReference& node) const;
    /// Makes the node current and selects it; false when it is not among the nodes.
    bool MakeCurrent(const NodeReference& node);
    /// Takes the view's selection back to the current node, and holds it there until the event that chose
    /// another one is over: a view selects twice for one key.
    void RefuseChoice();
    void ScrollToCurrent();

    /// The groups that are not expanded, or not collapsed.
    std::vector<qint32> GroupsWithout(bool expanded) const;
    /// Expands or collapses all groups, without ExpansionChanged.
    void SetAllExpanded(bool expanded);

signals:
    /// The person selected a node other than the current one.
    void NodeChosen(const Orvane::NodeReference& node);
    /// The person expanded or collapsed a group.
    void ExpansionChanged(qint32 groupID, bool expanded);
    /// The person gave a node another name; its editor is closed.
    void NameEntered(const Orvane::NodeReference& node, const QString& name);

private:
    void SetUpView();
    void Wire();
    void Refill(const std::function<void()>& fill, const std::vector<int>& expandedRows);
    void FindCurrentAgain();
    QModelIndex CurrentIndex() const;
    void Select(const QModelIndex& index);
    void SelectCurrent();
    void FollowSelection();
    void FollowExpansion(const QModelIndex& index, bool expanded);

    QTreeView* m_view;
    LayerTreeModel* m_model;
    std::optional<NodeReference> m_current;
    LayerTreePlace m_place; ///< of the last nodes; read after they are gone
    bool m_stale = false;
    bool m_quiet = false; ///< true while the view changes by our own hand
    bool m_refusing = false; ///< true until the event whose choice was refused is over
};

} // namespace Orvane
