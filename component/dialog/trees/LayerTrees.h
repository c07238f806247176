// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/ListTab.h"
#include "component/dialog/trees/NodeKey.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

class QTreeView;

namespace Orvane {

class IStyleFilter;
class LayerTreeList;

/// The two trees of the dialog: the groups with their layers, and the flat list of layers.
///
///     LayerTrees trees(form->tvLayers1, form->tvLayers2, this);
///     trees.SetPendingChangesQuestion([this] { ConfirmPendingChanges(); });
///     connect(&trees, &LayerTrees::CurrentNodeChanged, this, &frmLayerStyles::LoadPanel);
///     trees.ShowList(LayerTrees::List::Layers);
///
/// Each list has a current node of its own, the one the person chose last; the dialog's current node is that
/// of the list shown. Current node, selection and scroll position outlive every reload and are found again by
/// identity. Reading and writing goes through Client(); what the database or the host raises is passed on by
/// every member here, and reported to the person where a mouse or key event led to it.
class LayerTrees : public QObject
{
    Q_OBJECT

public:
    /// ListTab::Groups or ListTab::Layers.
    using List = ListTab;

    /// groups, layers: empty views; not owned, and alive as long as this object. They are set up here.
    LayerTrees(QTreeView* groups, QTreeView* layers, QObject* parent = nullptr);

    /// Called each time before another node becomes the dialog's current one, by a click, a key, another list
    /// or ShowLayer; CurrentNode and CurrentText still name the old node. When it raises, the old node stays.
    ///
    /// isPending: says whether the question will wait for an answer. It is then asked after the mouse or key
    /// event that chose the node, so that the dialog may even be destroyed while the question waits. Without
    /// it, or when it says no, a choice takes effect at once.
    void SetPendingChangesQuestion(std::function<void()> question, std::function<bool()> isPending = {});

    /// Keeps the host's filter for the flat list and marks that list stale; nullptr shows all layers. Not
    /// owned.
    void SetFilter(const IStyleFilter* filter);

    /// Reads the groups and their layers anew. The old nodes stay when it raises.
    void LoadGroups();
    /// Reads the flat list anew, through the filter. The old nodes stay when it raises.
    void LoadLayers();
    void Load(List list);
    /// Loads the list when it has no nodes or is stale.
    void EnsureLoaded(List list);
    /// The next EnsureLoaded reads the list even if it has nodes.
    void MarkStale(List list);

    /// Makes the list the one whose current node is the dialog's, after the question when that is another
    /// node. Does not load and does not emit CurrentNodeChanged: the caller reads CurrentNode.
    void ShowList(List list);
    List ShownList() const { return m_shown; }

    /// The dialog's current node with the image that it shows now; nothing when no node was chosen yet or the
    /// list is empty.
    std::optional<NodeReference> CurrentNode() const;
    /// The text of the current node as it is listed; empty when there is none.
    QString CurrentText() const;

    /// Gives all nodes of the layer the image of the quick mode (1, 2 or 4); images of groups follow.
    void SetLayerImage(qint32 layerID, qint16 quickMode);
    /// Gives the group, the layers that are listed under it or stored as its members, and their other nodes
    /// in both trees the image of the quick mode.
    void SetGroupImage(qint32 groupID, qint16 quickMode);
    /// Shows the text on all nodes of the layer. The order of the flat list changes with its next load only.
    void SetLayerText(qint32 layerID, const QString& text);
    /// Shows the layers' display names as the host gives them now, on all their nodes; those that are not
    /// listed are not asked for.
    void RefreshLayerTexts(const QSet<qint32>& layerIDs);

    /// Reads the layer, lists it in its place of the flat list (whatever the filter says), scrolls to it and
    /// makes it that list's current node. Loads the list first if need be. Does nothing for a layer that is
    /// not there or has a code of -2 or less.
    void ShowLayer(qint32 layerID);

    /// Renames the layer through the host and shows its new display name on all its nodes.
    void SetLayerName(qint32 layerID, const QString& name);

    /// True when the person may rename the node: no system layer, and a group or layer that is there.
    bool CanEditNode(const NodeReference& node) const;
    /// Opens the name editor on the dialog's current node if it may be renamed.
    void EditCurrentName();

signals:
    /// The dialog's current node is another one, or none.
    void CurrentNodeChanged();
    /// The person pressed Delete in a tree.
    void DeleteRequested();

private:
    LayerTreeList& At(List list) const;
    bool IsShown(const LayerTreeList& list) const;
    void Wire(LayerTreeList& list);

    void OnNodeChosen(LayerTreeList& list, const NodeReference& node);
    void MoveByPerson(LayerTreeList& list, const NodeReference& node);
    bool MoveTo(LayerTreeList& list, const NodeReference& node);
    bool AskAboutChanges();
    bool Loses(List list, bool kept) const;
    void Replace(List list, const std::function<void()>& fill);
    void RenameByPerson(const NodeReference& node, const QString& name);
    void RenameGroup(qint32 groupID, const QString& name);
    void ExpandAll(LayerTreeList& list, bool expanded);

    LayerTreeList* m_groups;
    LayerTreeList* m_layers;
    List m_shown = List::Layers;
    std::function<void()> m_question;
    std::function<bool()> m_isPending;
    const IStyleFilter* m_filter = nullptr;
};

} // namespace Orvane
