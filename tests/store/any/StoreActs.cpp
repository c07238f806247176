// SPDX-License-Identifier: MIT
#include "store/any/StoreActs.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

void StoreActs::AddLayer(ILayerStore& database, qint32 id, const QString& name)
{
    database.Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (?1, ?2)"), {id, name});
}

void StoreActs::AddLayers(ILayerStore& database, int count)
{
    Transaction transaction(database);
    for (int id = 1; id <= count; ++id)
        AddLayer(database, id, QStringLiteral("Layer %1").arg(id));
    transaction.Commit();
}

void StoreActs::AddGroup(ILayerStore& database, qint32 id, const QString& name, qint32 ordering)
{
    database.Execute(
        QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering) VALUES (?1, ?2, ?3)"),
        {id, name, ordering});
}

void StoreActs::AddMember(ILayerStore& database, qint32 group, qint32 layer, qint32 ordering)
{
    database.Execute(
        QStringLiteral("INSERT INTO LayerGroupMembers VALUES (?1, ?2, ?3)"), {group, layer, ordering});
}

std::unique_ptr<IRecordset> StoreActs::SeekLayer(ILayerStore& database, qint32 id)
{
    auto layers = database.OpenRecordset(QStringLiteral("Layers"));
    layers->Index("LayerIDIDX");
    layers->Seek("=", id);
    return layers;
}

void StoreActs::SetCode(ILayerStore& database, qint32 id, qint32 code)
{
    const auto layer = SeekLayer(database, id);
    layer->Edit();
    layer->SetField("Code", code);
    layer->Update();
}

void StoreActs::ChangeInTransactions(ILayerStore& database)
{
    Transaction transaction(database);
    SetCode(database, 1, 5);
    AddLayer(database, 9, QStringLiteral("New"));
    {
        Transaction inner(database);
        AddMember(database, 5, 9, 2);
        inner.Commit();
    }
    database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
    transaction.Commit();
}

QString StoreActs::NameOfLayer(ILayerStore& database, qint32 id)
{
    return ToText(SeekLayer(database, id)->Field("Name"));
}

std::vector<qint32> StoreActs::Column(ILayerStore& database, const QString& sql, const char* name)
{
    std::vector<qint32> numbers;
    for (auto rows = database.OpenRecordset(sql); !rows->AtEOF(); rows->MoveNext())
        numbers.push_back(ToInt32(rows->Field(name)));
    return numbers;
}

} // namespace Orvane::Testing
