// SPDX-License-Identifier: MIT
#include "hosttests/StoreContents.h"

#include "hosttests/HostContents.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QStringList>

namespace Orvane::HostTests {

namespace {

QString InsertionOfLayers()
{
    QStringList columns;
    QStringList places;
    for (const LayerColumn& column : LayerColumns) {
        columns << QString::fromLatin1(column.name);
        places << QStringLiteral("?%1").arg(columns.size());
    }
    return QStringLiteral("INSERT INTO Layers (%1) VALUES (%2)")
        .arg(columns.join(QStringLiteral(", ")), places.join(QStringLiteral(", ")));
}

} // namespace

void FillStore(ILayerStore& store, const HostContents& contents)
{
    Transaction transaction(store);
    const QString insertion = InsertionOfLayers();
    for (const ContentsLayer& layer : contents.layers)
        store.Execute(insertion, std::vector<Value>(layer.Values().begin(), layer.Values().end()));
    for (const ContentsGroup& group : contents.groups) {
        store.Execute(
            QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering, Pseudo, Expanded)"
                           " VALUES (?1, ?2, ?3, ?4, ?5)"),
            {group.id, group.name, group.groupOrdering, group.pseudo, group.expanded});
    }
    for (const ContentsMember& member : contents.members) {
        store.Execute(
            QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) VALUES (?1, ?2, ?3)"),
            {member.groupID, member.layerID, member.ordering});
    }
    transaction.Commit();
}

} // namespace Orvane::HostTests
