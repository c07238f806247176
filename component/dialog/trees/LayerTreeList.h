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
class NodeNameDelegate;

/// One tree: a view, its nodes, and its current node. The current node is the one that the owner has
/// accepted; the view's selection may already differ while the owner asks the user.
///
/// Current node, selection and scroll position are kept when the nodes are replaced. If the current node no
/// longer exists, the node that took its place becomes current.
class LayerTreeList : public QObject
{
    Q_OBJECT

public:
    /// view: not owned; outlives this object. It is set up here.
    explicit LayerTreeList(QTreeView* view, QObject* parent = nullptr);

    QTreeView& View() const { return *m_view; }
    LayerTreeModel& Model() const { return *m_model; }

    /// True if there are no nodes, or if they are out of date.
    bool NeedsLoad() const;
    void MarkStale() { m_stale = true; }

    /// Replace all nodes: by groups, expanded as their data says, or by layers.
    void ShowGroups(std::vector<GroupEntry> groups);
    void ShowLayers(std::vector<LayerEntry> layers);

    /// The identity of the current node, even while it is not among the nodes.
    const std::optional<NodeReference>& Current() const { return m_current; }
    /// The current node with the image that it shows now; nothing if it is not among the nodes.
    std::optional<NodeReference> CurrentNode() const;
    /// The current node's text; empty if it is not among the nodes.
    QString CurrentText() const;
    /// The index of the node in the view; invalid if it is not shown.
    QModelIndex IndexOf(const NodeReference& node) const;
    /// Makes the node current and selects it; false if it is not among the nodes.
    bool MakeCurrent(const NodeReference& node);
    /// Sets the view's selection back to the current node, and keeps it there until the event that chose
    /// another node is over: a view selects twice for one key press.
    void RefuseChoice();
    void ScrollToCurrent();

    /// Ends an open edit of a name as leaving the field does: NameEntered is emitted at once.
    void FinishNameEdit();
    /// Drops an open edit of a name, and a name for which NameEntered was not emitted yet.
    void DropNameEdit();

    /// The groups that are not expanded (expanded: true), or not collapsed (expanded: false).
    std::vector<qint32> GroupsWithout(bool expanded) const;
    /// Expands or collapses all groups, without emitting ExpansionChanged.
    void SetAllExpanded(bool expanded);

signals:
    /// The user selected a node other than the current one.
    void NodeChosen(const Orvane::NodeReference& node);
    /// The user clicked the current node, which was already selected.
    void CurrentClicked();
    /// The user expanded or collapsed a group.
    void ExpansionChanged(qint32 groupID, bool expanded);
    /// The user gave a node another name; its editor is closed.
    void NameEntered(const Orvane::NodeReference& node, const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetUpView();
    void Wire();
    void Refill(const std::function<void()>& fill, const std::vector<int>& expandedRows);
    void FindCurrentAgain();
    QModelIndex CurrentIndex() const;
    void Select(const QModelIndex& index);
    void SelectCurrent();
    void FollowSelection();
    void FollowClick(const QModelIndex& index);
    void FollowExpansion(const QModelIndex& index, bool expanded);
    void TellName();

    struct EnteredName {
        NodeReference node;
        QString name;
    };

    QTreeView* m_view;
    LayerTreeModel* m_model;
    NodeNameDelegate* m_delegate;
    std::optional<EnteredName> m_entered; ///< NameEntered is emitted after the event that entered it
    std::optional<NodeReference> m_current;
    LayerTreePlace m_place; ///< of the last nodes; read after they are removed
    bool m_stale = false;
    bool m_pressChose = false; ///< the last press of the mouse chose another node
    bool m_quiet = false; ///< true while this class changes the view
    bool m_refusing = false; ///< true until the event whose choice was refused is over
};

} // namespace Orvane
