// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/FindWords.h"
#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/trees/LayerTreePlace.h"
#include "component/dialog/trees/NodeSelection.h"
#include "component/model/LayerTreeEntries.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QTreeView;

namespace Orvane {

class LayerSamples;
class LayerTreeModel;
class NodeNameDelegate;

/// One tree: a view, its nodes, the chosen ones and the current one among these. Chosen are those that the
/// owner has accepted; the view's selection may already differ while the owner asks the user.
///
/// Chosen nodes, current node and scroll position are kept when the nodes are replaced. Chosen nodes that no
/// longer exist are left out; if none is left, the node that took the current node's place becomes current.
///
/// A find shows only some nodes, all groups expanded. Chosen nodes that it hides are not chosen, until they
/// are shown again or the user chooses others. Afterwards the list is as it was before, except that nodes
/// chosen meanwhile stay chosen, and in sight.
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

    /// Shows only the nodes in which all words occur; without words, all nodes again.
    void Find(const FindWords& words);
    /// Does so with the words of the last find, and keeps the scroll position.
    void FindAgain();
    bool IsFinding() const;
    /// Whether chosen nodes are listed even if they are not found: from the next Find or replacement on.
    void KeepChosen(bool keep) { m_keepsChosen = keep; }
    /// Shows a sample of each layer's line and fill; nullptr shows none. Not owned.
    void ShowSamples(LayerSamples* samples);
    /// True if a node is listed only because of KeepChosen.
    bool HoldsOther() const;
    /// Selects the first node that was found, as a user does; false if none was.
    bool ChooseFirstFound();

    /// The current node with the image that it shows now; nothing if it is not among the nodes.
    std::optional<NodeReference> CurrentNode() const;
    /// The current node's text; empty if it is not among the nodes.
    QString CurrentText() const;
    /// The index of the node in the view; invalid if it is not shown.
    QModelIndex IndexOf(const NodeReference& node) const;
    /// The chosen nodes; empty if no node was chosen yet, or if a find hides all of them.
    const NodeSelection& Chosen() const { return m_chosen; }
    /// Makes the node current and selects it alone; false if it is not among the nodes.
    bool MakeCurrent(const NodeReference& node);
    /// Chooses those of the nodes that exist, and selects them; false if there are none.
    bool Choose(const NodeSelection& nodes);
    /// Sets the view's selection back to the chosen nodes, and keeps it there until the event that chose
    /// others is over: a view selects twice for one key press.
    void RefuseChoice();
    void ScrollToCurrent();

    /// Ends an open edit of a name as leaving the field does: NameEntered is emitted at once.
    void FinishNameEdit();
    /// Drops an open edit of a name, and a name for which NameEntered was not emitted yet.
    void DropNameEdit();

    /// The shown groups that are not expanded (expanded: true), or not collapsed (expanded: false).
    std::vector<qint32> GroupsWithout(bool expanded) const;
    /// Expands or collapses all groups, without emitting ExpansionChanged.
    void SetAllExpanded(bool expanded);

signals:
    /// The user selected other nodes than the chosen ones; while the mouse is drawn over nodes, after it was
    /// released.
    void NodesChosen(const Orvane::NodeSelection& nodes);
    /// The user clicked the current node, which was already selected.
    void CurrentClicked();
    /// The user double-clicked the current node, a layer.
    void NameEditWanted();
    /// The user expanded or collapsed a group; not emitted during a find.
    void ExpansionChanged(qint32 groupID, bool expanded);
    /// Nodes were replaced or added, or a find shows others.
    void NodesChanged();
    /// Nodes were replaced or added; not emitted by a find.
    void NodesRead();
    /// The user gave a node another name; its editor is closed.
    void NameEntered(const Orvane::NodeReference& node, const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetUpView();
    void Wire();
    void Refill(const std::function<void()>& fill, std::vector<qint32> expandedGroups);
    void Expand(const std::vector<qint32>& groupIDs);
    void LayOut();
    void ShowFound();
    void ShowAsBefore();
    void ScrollToChosen();
    void PaintNothingFound();
    void FindChosenAgain();
    QModelIndex CurrentIndex() const;
    bool ChooseMany(const NodeSelection& nodes);
    void Select(const QModelIndex& index);
    void SelectMany(const QItemSelection& ranges, const QModelIndex& current);
    void SelectChosen();
    bool ChooseWanted();
    void FollowSelection();
    void FollowMouse(const QEvent& event);
    void EndDrawing();
    void FollowClick(const QModelIndex& index);
    void FollowDoubleClick(const QModelIndex& index);
    void FollowExpansion(const QModelIndex& index, bool expanded);
    void TellName();

    struct EnteredName {
        NodeReference node;
        QString name;
    };

    /// The view before a find.
    struct Before {
        LayerTreePlace place;
        NodeSelection wanted;
        std::vector<qint32> expandedGroups;
    };

    QTreeView* m_view;
    QWidget* m_viewport; // of the view, which loses the keys once more while it ends
    LayerTreeModel* m_model;
    NodeNameDelegate* m_delegate;
    std::optional<EnteredName> m_entered; ///< NameEntered is emitted after the event that entered it
    NodeSelection m_chosen;
    NodeSelection m_wanted; ///< as they were chosen; a find hides some or all of these
    LayerTreePlace m_place; ///< of the last nodes; read after they are removed
    Before m_before; ///< valid during a find
    bool m_keepsChosen = false;
    bool m_stale = false;
    bool m_pressChose = false; ///< the last press of the mouse chose other nodes
    bool m_isPlainDouble = false; ///< the last double click was one with the left button and no key
    bool m_isDrawing = false; ///< the pressed mouse is drawn over nodes
    bool m_quiet = false; ///< true while this class changes the view
    bool m_refusing = false; ///< true until the event whose choice was refused is over
};

} // namespace Orvane
