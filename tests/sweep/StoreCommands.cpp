// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/ILayerStore.h"
#include "store/StoreTable.h"
#include "store/opening/LayerStores.h"
#include "sweep/SweepCommand.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

namespace {

using Act = std::function<void()>;
using Preparation = std::function<Act(ILayerStore&, const SweepBench&)>;

SweepCommand OnStore(const std::string& name, const Preparation& prepare)
{
    return {name, [prepare](const SweepBench& bench) -> PreparedCommand {
                const std::shared_ptr<ILayerStore> store = LayerStores::Open(bench.folder.MapPath());
                return {[store, act = prepare(*store, bench)] { act(); }, store.get()};
            }};
}

SweepCommand Doing(const std::string& name, const std::function<void(ILayerStore&)>& act)
{
    return OnStore(
        name, [act](ILayerStore& store, const SweepBench&) -> Act { return [&store, act] { act(store); }; });
}

void SetColorByCursor(ILayerStore& store)
{
    const auto layers = store.OpenRecordset(QStringLiteral("Layers"));
    layers->Index("LayerIDIDX");
    layers->Seek("=", 1);
    layers->Edit();
    layers->SetField("Color", qint32(5));
    layers->Update();
}

void DeleteALayer(ILayerStore& store)
{
    store.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
}

void ChangeALotInOneTransaction(ILayerStore& store)
{
    Transaction transaction(store);
    SetColorByCursor(store);
    store.Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (9, 'New')"));
    {
        Transaction inner(store);
        store.Execute(QStringLiteral("INSERT INTO LayerGroupMembers VALUES (1, 9, 2)"));
        inner.Commit();
    }
    DeleteALayer(store);
    transaction.Commit();
}

StoreTable NewTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString number = QStringLiteral("Number");
    const QString name = QStringLiteral("Name");
    return {
        QStringLiteral("HostRows"),
        {{number, StoreType::Whole, Nulls::Refused}, {name, StoreType::Text}},
        {number},
        {},
        {name}};
}

void AddColumns(ILayerStore& store)
{
    StoreTable table = NewTable();
    table.columns.push_back({QStringLiteral("Size"), StoreType::Real});
    table.columns.push_back({QStringLiteral("Seen"), StoreType::Flag});
    store.PrepareTable(table);
}

Act PrepareColumns(ILayerStore& store, const SweepBench&)
{
    store.PrepareTable(NewTable());
    return [&store] { AddColumns(store); };
}

Act PrepareApplying(ILayerStore& store, const SweepBench&)
{
    const auto recorder = store.RecordChanges();
    SetColorByCursor(store);
    DeleteALayer(store);
    return [&store, undo = recorder->Changes().Inverted()] { store.Apply(undo); };
}

Act PrepareCopy(ILayerStore& store, const SweepBench& bench)
{
    return [&store, path = bench.folder.PathOf("copy.orvane")] { store.CopyToFile(path); };
}

} // namespace

std::vector<SweepCommand> StoreCommands()
{
    return {
        Doing("store: edit by a cursor", SetColorByCursor),
        Doing("store: statement", DeleteALayer),
        Doing("store: transaction", ChangeALotInOneTransaction),
        Doing("store: new table", [](ILayerStore& store) { store.PrepareTable(NewTable()); }),
        OnStore("store: new columns", PrepareColumns),
        OnStore("store: apply changes", PrepareApplying),
        OnStore("store: copy", PrepareCopy),
    };
}

} // namespace Orvane::Testing
