// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>
#include <QtGlobal>

namespace Orvane {

/// Identifies a node of a tree: a group, or a layer under one group.
struct NodeReference {
    bool isGroup = false;
    qint32 groupID = 0; ///< of a layer: the group that it is under; 0 in the flat list
    qint32 layerID = 0; ///< 0 for a group
    qint16 image = 0; ///< quick mode that the node shows: 1 normal, 2 backdrop, 4 hidden, 0 various

    bool operator==(const NodeReference&) const = default;
};

/// True if both refer to the same node; the images may differ.
bool IsSameNode(const NodeReference& left, const NodeReference& right);

/// The identity of a node as text: "G" or "L", the group ID, the layer ID, each in the pattern
/// "0000000;-000000". 15 characters for IDs from -999999 to 9999999, longer beyond.
///
///     MakeNodeKey({.groupID = 12, .layerID = 345}) == "L00000120000345"
QString MakeNodeKey(const NodeReference& node);

/// The image key of a node: its kind letter and the quick mode, such as "G1" or "L4".
QString MakeImageKey(const NodeReference& node);

/// The reverse of MakeNodeKey for keys of 15 characters; any other text gives wrong IDs. imageKey: as from
/// MakeImageKey, empty for a node without image, which leaves the image 0. Never raises.
NodeReference ReadNodeKey(const QString& key, const QString& imageKey = {});

} // namespace Orvane

Q_DECLARE_METATYPE(Orvane::NodeReference)
