// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerTreeEntries.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QSet>

#include <utility>
#include <vector>

namespace Orvane {

/// The nodes of one tree: groups with their layers, or layers alone. All nodes are held in flat vectors, so
/// that 100,000 layers need one allocation per text and none per row. Keys are created on request.
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

    bool HasNodes() const { return !m_groups.empty() || !m_layers.empty(); }
    /// The node at a valid index.
    NodeReference Reference(const QModelIndex& index) const;
    /// The first node with the reference's identity, whatever its image; invalid if there is none.
    QModelIndex IndexOf(const NodeReference& node) const;
    /// True if the layer has a node.
    bool Lists(qint32 layerID) const;
    /// Those of the given layers that have a node.
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
    /// Flat list only: adds the layer at its position by text and returns its index.
    QModelIndex InsertLayer(const LayerEntry& layer);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct GroupNode {
        qint32 groupID = 0;
        qint16 image = 0;
        int firstLayer = 0; ///< index into m_layers
        int layerCount = 0;
        QString text;
        bool faulty = false;
    };

    struct LayerNumber {
        qint32 layerID = 0;
        int number = 0; ///< index into m_layers
    };

    bool IsGroup(const QModelIndex& index) const;
    int NumberOf(const QModelIndex& layerIndex) const;
    QModelIndex IndexOfNumber(int number) const;
    int GroupOfNumber(int number) const;
    QModelIndex IndexOfLayer(const NodeReference& node) const;
    const QString& TextAt(const QModelIndex& index) const;
    bool IsFaulty(const QModelIndex& index) const;

    const std::vector<LayerNumber>& ByLayerID() const;
    using LayerNumbers = std::vector<LayerNumber>::const_iterator;
    std::pair<LayerNumbers, LayerNumbers> NumbersOf(qint32 layerID) const;
    qint16 CommonQuickMode(const GroupNode& group) const;
    void ReportLayers(const std::vector<int>& numbers);
    void RefreshGroupImages(const std::vector<int>& changedNumbers);

    std::vector<GroupNode> m_groups;
    std::vector<LayerEntry> m_layers; ///< of all groups, one group after the other
    mutable std::vector<LayerNumber> m_byLayerID; ///< sorted; empty until it is needed
};

} // namespace Orvane
