// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/FindWords.h"
#include "component/dialog/nodes/FlatNodes.h"
#include "component/dialog/nodes/NodeFinder.h"
#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/trees/NodeSelection.h"
#include "component/model/LayerTreeEntries.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QSet>

#include <utility>
#include <vector>

namespace Orvane {

/// The nodes of one tree: groups with their layers, or layers alone. Keys are created on request.
///
/// A find shows only some of the nodes; commands reach the others too, and a group's image is that of all its
/// layers. The find is applied again when the nodes are replaced, but not when a text changes.
///
/// Commands change a layer's image or a group's text. Each command reports its changes once: one range for
/// the groups and one for the layers of each changed group. Nothing here raises.
class LayerTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        NodeKeyRole = Qt::UserRole, ///< QString, as from MakeNodeKey
        ImageKeyRole, ///< QString, as from MakeImageKey
        ReferenceRole, ///< NodeReference
        IsGroupRole, ///< bool
        GroupIDRole, ///< qint32; 0 in the flat list
        LayerIDRole, ///< qint32; 0 for a group
        QuickModeRole, ///< int: 1 normal, 2 backdrop, 4 hidden, 0 for a group whose layers differ
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Replaces all nodes by groups with their layers.
    void SetGroups(std::vector<GroupEntry> groups);
    /// Replaces all nodes by layers without groups.
    void SetLayers(std::vector<LayerEntry> layers);

    /// Shows the nodes in which all words occur (see NodeFinder), and the kept nodes. Without words, all.
    void Find(const FindWords& words);
    /// The nodes that the next find, or the next replacement of the nodes, shows whether they are found or
    /// not.
    void Keep(NodeSelection kept) { m_kept = std::move(kept); }
    const FindWords& Words() const { return m_words; }
    /// What the last find left; the rows are this class's own business.
    const FoundNodes& Found() const { return m_found; }
    /// The number of layer nodes, shown or not.
    int LayerCount() const { return int(m_nodes.Layers().size()); }
    /// True if there is a node with the reference's identity, shown or not.
    bool Has(const NodeReference& node) const;

    bool HasNodes() const { return !m_nodes.IsEmpty(); }
    /// The node at a valid index.
    NodeReference Reference(const QModelIndex& index) const;
    /// The first node with the reference's identity, whatever its image; invalid if there is none, or if it
    /// is not shown.
    QModelIndex IndexOf(const NodeReference& node) const;
    /// True if the layer has a node, shown or not.
    bool Lists(qint32 layerID) const { return m_nodes.Lists(layerID); }
    /// The layers of the group, shown or not.
    std::vector<qint32> LayerIDsOf(qint32 groupID) const;
    /// Those of the given layers that have a node, shown or not.
    QSet<qint32> LayersAmong(const QSet<qint32>& layerIDs) const;

    /// Gives all nodes of these layers the image of the quick mode, and updates the images of their groups.
    void SetQuickMode(const std::vector<qint32>& layerIDs, qint16 quickMode);
    /// Gives all nodes of each layer the image of its quick mode, and updates the images of their groups.
    void SetQuickModes(const std::vector<LayerMode>& modes);
    void SetLayerText(qint32 layerID, const QString& text);
    /// Gives the layers these texts, by layer ID, in one command; other layers keep their texts.
    void SetLayerTexts(const QHash<qint32, QString>& texts);
    void SetGroupText(qint32 groupID, const QString& text);
    /// Gives all nodes of the layer its text, image and fault; updates the images of its groups. True if the
    /// text is another one.
    bool UpdateLayer(const LayerEntry& layer);
    /// Flat list only: moves the layer, which is in it, to the position of that name. Returns false and moves
    /// nothing if the texts of the other layers are not in the order of names without case.
    bool PlaceLayer(qint32 layerID, const QString& name);
    /// Flat list only: adds the layer at its position by text, if there is none, and shows it; returns its
    /// index.
    QModelIndex InsertLayer(const LayerEntry& layer);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    bool HasGroups() const { return !m_nodes.Groups().empty(); }
    bool IsGroup(const QModelIndex& index) const;
    int NumberOf(const QModelIndex& index) const;
    QModelIndex IndexOfLayer(int number) const;
    const QString& TextAt(const QModelIndex& index) const;
    bool IsFaulty(const QModelIndex& index) const;

    void MoveLayer(int from, int to);
    void ReportLayers(const std::vector<int>& numbers);
    void ReportTexts(const std::vector<int>& numbers);
    void RefreshGroupImages(const std::vector<int>& changedNumbers);

    FlatNodes m_nodes;
    NodeFinder m_finder;
    FindWords m_words;
    NodeSelection m_kept;
    FoundNodes m_found;
};

} // namespace Orvane
