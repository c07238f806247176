// SPDX-License-Identifier: MIT
#include "kill/KillMap.h"

#include "store/StoreTable.h"
#include "store/opening/LayerStores.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/repair/FileDamage.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::Testing::KillMap {

namespace {

qint32 LeftLayer(qint32 writer)
{
    return 10 * writer + 1;
}

qint32 RightLayer(qint32 writer)
{
    return 10 * writer + 2;
}

qint32 GroupOf(qint32 writer)
{
    return writer + 1;
}

StoreTable EditsTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString writer = QStringLiteral("Writer");
    const QString number = QStringLiteral("EditNumber");
    return {
        QStringLiteral("KillEdits"),
        {{writer, StoreType::Whole, Nulls::Refused}, {number, StoreType::Whole, Nulls::Refused}},
        {writer, number}};
}

void AddRows(ILayerStore& store)
{
    Transaction transaction(store);
    store.PrepareTable(EditsTable());
    for (qint32 writer = 0; writer < WriterCount; ++writer) {
        for (const qint32 layer : {LeftLayer(writer), RightLayer(writer)})
            store.Execute(QStringLiteral("INSERT INTO Layers (LayerID, Color) VALUES (?1, 0)"), {layer});
        store.Execute(
            QStringLiteral("INSERT INTO LayerGroups (ID, GroupOrdering) VALUES (?1, 0)"), {GroupOf(writer)});
    }
    transaction.Commit();
}

void SetByCursor(IRecordset& table, std::string_view index, qint32 id, std::string_view column, qint32 number)
{
    table.Index(index);
    table.Seek("=", id);
    table.Edit();
    table.SetField(column, number);
    table.Update();
}

qint32 NumberFrom(ILayerStore& store, const char* sql, qint32 key)
{
    const auto rows = store.OpenQuery(QString::fromLatin1(sql), {key});
    return rows->AtEOF() ? -1 : ToInt32(rows->Field("Number"));
}

QStringList FaultsOfWriter(ILayerStore& store, qint32 writer, qint32 reported)
{
    constexpr auto layer = "SELECT Color AS Number FROM Layers WHERE LayerID = ?1";
    constexpr auto group = "SELECT GroupOrdering AS Number FROM LayerGroups WHERE ID = ?1";
    constexpr auto count = "SELECT COUNT(*) AS Number FROM KillEdits WHERE Writer = ?1";
    const qint32 last = LastNumber(store, writer);
    const auto name = QStringLiteral("Writer %1: ").arg(writer);
    QStringList faults;
    if (last < reported)
        faults << name + QStringLiteral("edit %1 was reported, the last one is %2.").arg(reported).arg(last);
    if (const qint32 found = NumberFrom(store, count, writer); found != last)
        faults << name + QStringLiteral("of %1 edits %2 are in the list.").arg(last).arg(found);
    const qint32 left = NumberFrom(store, layer, LeftLayer(writer));
    const qint32 right = NumberFrom(store, layer, RightLayer(writer));
    const qint32 ordering = NumberFrom(store, group, GroupOf(writer));
    if (left != last || right != last || ordering != last)
        faults << name
                + QStringLiteral("after edit %1 its rows hold %2, %3 and %4.")
                      .arg(last)
                      .arg(left)
                      .arg(right)
                      .arg(ordering);
    return faults;
}

} // namespace

void Make(const QString& path)
{
    LayerStores::Make(path, IfExists::Refuse, [](std::unique_ptr<ILayerStore> store) { AddRows(*store); });
}

qint32 LastNumber(ILayerStore& store, qint32 writer)
{
    constexpr auto last = "SELECT coalesce(max(EditNumber), 0) AS Number FROM KillEdits WHERE Writer = ?1";
    return NumberFrom(store, last, writer);
}

void AddToList(ILayerStore& store, qint32 writer, qint32 number)
{
    store.Execute(
        QStringLiteral("INSERT INTO KillEdits (Writer, EditNumber) VALUES (?1, ?2)"), {writer, number});
}

void SetByCursors(ILayerStore& store, qint32 writer, qint32 number)
{
    const auto layers = store.OpenRecordset(QStringLiteral("Layers"));
    SetByCursor(*layers, "LayerIDIDX", LeftLayer(writer), "Color", number);
    SetByCursor(*layers, "LayerIDIDX", RightLayer(writer), "Color", number);
    const auto groups = store.OpenRecordset(QStringLiteral("LayerGroups"));
    SetByCursor(*groups, "IDIDX", GroupOf(writer), "GroupOrdering", number);
}

void SetByStatements(ILayerStore& store, qint32 writer, qint32 number)
{
    const auto layer = QStringLiteral("UPDATE Layers SET Color = ?1 WHERE LayerID = ?2");
    store.Execute(layer, {number, LeftLayer(writer)});
    store.Execute(layer, {number, RightLayer(writer)});
    store.Execute(
        QStringLiteral("UPDATE LayerGroups SET GroupOrdering = ?1 WHERE ID = ?2"), {number, GroupOf(writer)});
}

qint32 EditCount(const QString& path)
{
    const auto store = LayerStores::Open(path, OpenMode::ReadOnly);
    qint32 count = 0;
    for (qint32 writer = 0; writer < WriterCount; ++writer)
        count += LastNumber(*store, writer);
    return count;
}

QStringList FindFaults(const QString& path, OpenMode mode, const ReportedNumbers& reported)
{
    try {
        const auto store = SqliteLayerDatabase::Open(path, mode);
        QStringList faults;
        for (const FileDamage& damage : FindDamage(*store))
            faults << damage.message;
        for (qint32 writer = 0; writer < WriterCount; ++writer)
            faults << FaultsOfWriter(*store, writer, reported[size_t(writer)]);
        return faults;
    } catch (const RunTimeError& error) {
        return {QStringLiteral("The map cannot be read: ") + error.Description()};
    }
}

} // namespace Orvane::Testing::KillMap
