// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeKey.h"

namespace Orvane {

namespace {

// "0000000;-000000": seven characters, including the sign.
QString FormatID(qint32 id)
{
    const QString digits = QString::number(qAbs(qint64(id)));
    return id < 0 ? QLatin1Char('-') + digits.rightJustified(6, QLatin1Char('0'))
                  : digits.rightJustified(7, QLatin1Char('0'));
}

QString KindLetter(const NodeReference& node)
{
    return node.isGroup ? QStringLiteral("G") : QStringLiteral("L");
}

} // namespace

bool IsSameNode(const NodeReference& left, const NodeReference& right)
{
    return left.isGroup == right.isGroup && left.groupID == right.groupID && left.layerID == right.layerID;
}

QString MakeNodeKey(const NodeReference& node)
{
    return KindLetter(node) + FormatID(node.groupID) + FormatID(node.layerID);
}

QString MakeImageKey(const NodeReference& node)
{
    return KindLetter(node) + QString::number(node.image);
}

NodeReference ReadNodeKey(const QString& key, const QString& imageKey)
{
    return {
        .isGroup = key.startsWith(QLatin1Char('G')),
        .groupID = key.mid(1, 7).toInt(),
        .layerID = key.mid(8, 7).toInt(),
        .image = imageKey.mid(1).toShort(),
    };
}

} // namespace Orvane
