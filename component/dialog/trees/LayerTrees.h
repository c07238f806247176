// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/place/ListTab.h"
#include "component/model/LayerTreeEntries.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QMenu;
class QTreeView;

namespace Orvane {

class ColumnError;
class IStyleFilter;
class LayerSamples;
class LayerTreeGestures;
class LayerTreeList;
class NodeSelection;
struct ListedLayer;

/// The two trees of the dialog: the groups with their layers, and the flat list of layers.
///
///     LayerTrees trees(form->tvLayers1, form->tvLayers2, this);
///     trees.SetPendingChangesQuestion([this] { ConfirmPendingChanges(); });
///     connect(&trees, &LayerTrees::CurrentNodeChanged, this, &frmLayerStyles::LoadPanel);
///     trees.ShowList(LayerTrees::List::Layers);
///
/// Each list has its own current node, the one that the user chose last, and may have several chosen nodes,
/// of which it is one; the dialog's current node is that of the list shown. Chosen nodes, current node and
/// scroll position are kept on every reload and found again by identity. Reading and writing use Client().
/// What the database or the host raises is passed on by every member here; if a mouse or key event caused it,
/// it is shown to the user.
class LayerTrees : public QObject
{
    Q_OBJECT

public:
    /// ListTab::Groups or ListTab::Layers.
    using List = ListTab;

    /// groups, layers: empty views; not owned; outlive this object. They are set up here.
    LayerTrees(QTreeView* groups, QTreeView* layers, QObject* parent = nullptr);

    /// The question is called each time before other nodes are chosen in the list shown, even if only one
    /// more or one less, by a click, a key, another list or ShowLayer; CurrentNode, ChosenNodes and
    /// CurrentText still return the old ones. If it raises, the old nodes stay chosen.
    ///
    /// isPending: returns whether the question will wait for an answer. If so, the question is called after
    /// the mouse or key event that chose the node, so that the dialog may even be destroyed while it waits.
    /// Without isPending, or if it returns false, a choice takes effect at once, unless it leaves a node that
    /// was not found: see Find.
    void SetPendingChangesQuestion(std::function<void()> question, std::function<bool()> isPending = {});

    /// Sets the host's filter for the flat list and marks that list stale; nullptr shows all layers. Not
    /// owned.
    void SetFilter(const IStyleFilter* filter);

    /// Ends an open edit of a name as leaving the field does: the name is stored, and what goes wrong is
    /// shown to the user.
    void FinishNameEdit();
    /// Drops an open edit of a name, and a name that was entered and not stored yet.
    void DropNameEdit();

    /// Reads the groups and their layers again. If it raises, the old nodes stay. A value that cannot be read
    /// does not raise: what can be listed is listed, and the first such value is shown to the user after the
    /// current event.
    void LoadGroups();
    /// Reads the flat list again, through the filter, as LoadGroups does.
    void LoadLayers();
    void Load(List list);
    /// Loads the list if it has no nodes or is stale.
    void EnsureLoaded(List list);
    /// The next EnsureLoaded reads the list even if it has nodes.
    void MarkStale(List list);

    /// Shows only those nodes of the list in which all words of the text occur, also when it is loaded again;
    /// an empty text shows all, as they were before. Which groups are expanded meanwhile is not stored.
    ///
    /// A current node that is not found is left: the dialog shows no node until it is found again or another
    /// one is chosen. With pending changes it stays listed, and the dialog's current node, until the question
    /// about them was asked: because another node was chosen, or in LeaveUnfound. If the question raises, the
    /// node stays. If they were applied before, it stays until then all the same.
    void Find(List list, const QString& text);
    /// The user goes from the field to the list: if a node stays listed although it is not found, the
    /// question is asked after the event, and the node is left.
    void LeaveUnfound(List list);
    /// Selects the first node that was found, as a user does; false if there is none.
    bool ChooseFirstFound(List list);
    bool IsFinding(List list) const;
    /// The layer nodes that were found in the list, and all of them.
    struct FoundCount {
        int found = 0;
        int all = 0;
    };
    FoundCount CountFound(List list) const;

    /// Whether each layer's row shows a sample of its line and fill; at first not. The user may switch it.
    void ShowSamples(bool show);
    bool ShowsSamples() const { return m_showsSamples; }
    /// The layers' lines and fills may have changed: those of the rows in sight are read again.
    void ExpireSamples();

    /// Makes the list's current node the dialog's current node, after the question if that is another node.
    /// Does not load and does not emit CurrentNodeChanged: the caller reads CurrentNode.
    void ShowList(List list);
    List ShownList() const { return m_shown; }

    /// The dialog's current node with the image that it shows now; nothing if no node was chosen yet or the
    /// list is empty.
    std::optional<NodeReference> CurrentNode() const;
    /// The nodes that are chosen in the list shown, the current one among them; empty if no node was chosen
    /// yet. All of them existed when the list was read last.
    const NodeSelection& ChosenNodes() const;
    /// The listed text of the current node; empty if there is none.
    QString CurrentText() const;

    /// Gives all nodes of the layer the image of the quick mode (1, 2 or 4); updates the images of their
    /// groups.
    void SetLayerImage(qint32 layerID, qint16 quickMode);
    /// Gives the image of the quick mode to all nodes of the layers that are stored as the group's members
    /// now; updates the images of their groups.
    void SetGroupImage(qint32 groupID, qint16 quickMode);
    /// Gives all nodes of each layer the image of its mode, as SetLayerImage does.
    void SetLayerImages(const std::vector<LayerMode>& modes);
    /// Shows the text on all nodes of the layer. The order of the flat list changes only when it is loaded
    /// again.
    void SetLayerText(qint32 layerID, const QString& text);
    /// Shows the layers' current display names from the host on all their nodes; the host is not asked for
    /// layers that are not listed.
    void RefreshLayerTexts(const QSet<qint32>& layerIDs);

    /// Reads these layers again and shows their texts and images on all their nodes, each at its position in
    /// the flat list. Returns false if that is not enough, and the lists must be loaded again: a layer came
    /// or went, its position is not known, or they are many.
    bool RefreshLayers(const QSet<qint32>& layerIDs);

    /// Reads the layer, adds it at its position in the flat list (whatever the filter says), scrolls to it
    /// and makes it that list's current node. Loads the list first if needed. Does nothing for a layer that
    /// does not exist or has a code of -2 or less.
    void ShowLayer(qint32 layerID);

    /// Renames the layer through the host and shows its new display name on all its nodes.
    void SetLayerName(qint32 layerID, const QString& name);

    /// True if the user may rename the node: an existing group, or an existing layer that is no system layer.
    bool CanEditNode(const NodeReference& node) const;
    /// Opens the name editor on the dialog's current node if it may be renamed.
    void EditCurrentName();

signals:
    /// Other nodes are chosen now in the list shown, or none.
    void CurrentNodeChanged();
    /// Some of the chosen nodes no longer exist and have left the selection; others are still chosen.
    void ChosenNodesGone();
    /// The user clicked the dialog's current node again.
    void CurrentNodeClicked();
    /// Nodes of a list were replaced or added, or a find shows others: see CountFound.
    void NodesChanged();
    /// Nodes of a list were replaced or added; not emitted by a find.
    void NodesRead();
    /// The user pressed Delete in a tree.
    void DeleteRequested();
    /// The menu of the nodes in the list shown is about to open: receivers add their entries. It opens only
    /// after the question, and not at all if the old nodes stay chosen.
    void MenuOpening(QMenu* menu);

private:
    LayerTreeList& At(List list) const;
    bool IsShown(const LayerTreeList& list) const;
    void Wire(LayerTreeList& list);
    void WireSamples(LayerTreeList& list, LayerTreeGestures& gestures);

    void OnNodesChosen(LayerTreeList& list, const NodeSelection& nodes);
    void LeaveByUser(LayerTreeList& list, const NodeSelection& nodes);
    bool MoveByUser(LayerTreeList& list, const NodeSelection& nodes);
    bool MoveTo(LayerTreeList& list, const NodeSelection& nodes);
    bool AskAboutChanges();
    bool IsListedAsBefore(qint32 layerID, const std::optional<ListedLayer>& layer) const;
    bool ShowAgain(const ListedLayer& layer);
    void ReportFault(List list, const std::optional<ColumnError>& fault);
    bool Loses(List list, const std::vector<NodeReference>& missing) const;
    void Replace(List list, const std::function<void()>& fill, bool wasAsked);
    void RenameByUser(const NodeReference& node, const QString& name);
    void RenameGroup(qint32 groupID, const QString& name);
    void ExpandAll(LayerTreeList& list, bool expanded);
    bool HasEdits(const LayerTreeList& list) const;
    void TryToLeaveUnfound(List list);
    void DropUnfound(LayerTreeList& list);

    LayerTreeList* m_groups;
    LayerTreeList* m_layers;
    LayerSamples* m_samples;
    bool m_showsSamples = false;
    List m_shown = List::Layers;
    std::function<void()> m_question;
    std::function<bool()> m_isPending;
    std::function<void()> m_openMenu; ///< after the question; nullptr: no menu was asked for
    bool m_isLeaving = false; ///< the question will be asked after the event, or is being asked
    const IStyleFilter* m_filter = nullptr;
};

} // namespace Orvane
