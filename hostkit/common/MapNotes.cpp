// SPDX-License-Identifier: MIT
#include "hostkit/common/MapNotes.h"

#include "store/ILayerStore.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane {

namespace {

StoreTable NotesTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString name = QStringLiteral("Name");
    return {
        QStringLiteral("MapNotes"),
        {{name, StoreType::Text, Nulls::Refused},
         {QStringLiteral("Content"), StoreType::Text, Nulls::Refused}},
        {name}};
}

// A stranger's table of that name is none.
bool HasNotes(ILayerStore& store)
{
    const StoreTable table = NotesTable();
    return store.HasTable(table.name)
        && std::all_of(table.columns.begin(), table.columns.end(), [&](const StoreColumn& column) {
               return store.HasColumn(table.name, column.name);
           });
}

} // namespace

void MapNotes::Prepare(ILayerStore& store)
{
    store.PrepareTable(NotesTable());
}

QString MapNotes::Read(ILayerStore& store, const QString& key)
{
    if (!HasNotes(store))
        return {};
    const auto note = store.OpenQuery(QStringLiteral("SELECT Content FROM MapNotes WHERE Name = ?1"), {key});
    return note->AtEOF() ? QString() : ToTextOrNone(note->Field("Content"));
}

void MapNotes::Write(ILayerStore& store, const QString& key, const QString& text)
{
    if (text.isEmpty() && !store.HasTable(NotesTable().name))
        return;
    Prepare(store);
    if (text.isEmpty()) {
        store.Execute(QStringLiteral("DELETE FROM MapNotes WHERE Name = ?1"), {key});
        return;
    }
    store.Execute(
        QStringLiteral("INSERT INTO MapNotes (Name, Content) VALUES (?1, ?2)"
                       " ON CONFLICT (Name) DO UPDATE SET Content = excluded.Content"),
        {key, text});
}

QMap<QString, QString> MapNotes::ReadAll(ILayerStore& store)
{
    QMap<QString, QString> notes;
    if (!HasNotes(store))
        return notes;
    const auto row = store.OpenQuery(QStringLiteral("SELECT Name, Content FROM MapNotes"));
    for (; !row->AtEOF(); row->MoveNext())
        notes.insert(ToTextOrNone(row->Field("Name")), ToTextOrNone(row->Field("Content")));
    return notes;
}

bool MapNotes::ReplaceAll(ILayerStore& store, const QMap<QString, QString>& notes)
{
    const QMap<QString, QString> before = ReadAll(store);
    if (before == notes)
        return false;
    Transaction transaction(store);
    for (const QString& key : before.keys())
        Write(store, key, notes.value(key));
    for (auto note = notes.begin(); note != notes.end(); ++note)
        Write(store, note.key(), note.value());
    transaction.Commit();
    return true;
}

} // namespace Orvane
