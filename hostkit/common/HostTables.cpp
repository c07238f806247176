// SPDX-License-Identifier: MIT
#include "hostkit/common/HostTables.h"

#include "hostkit/common/HostErrors.h"
#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

StoreTable VersionsTable()
{
    using Nulls = StoreColumn::Nulls;
    return {
        QString::fromLatin1(HostTables::TableName),
        {{QStringLiteral("Name"), StoreType::Text, Nulls::Refused},
         {QStringLiteral("Version"), StoreType::Whole, Nulls::Refused}},
        {QStringLiteral("Name")}};
}

} // namespace

qint32 HostTables::VersionOf(ILayerStore& store, const QString& name)
{
    if (!store.HasTable(VersionsTable().name))
        return 0;
    const auto row
        = store.OpenQuery(QStringLiteral("SELECT Version FROM HostTables WHERE Name = ?1"), {name});
    return row->AtEOF() ? 0 : ToInt32(row->Field("Version"));
}

void HostTables::SetVersion(ILayerStore& store, const QString& name, qint32 version)
{
    store.PrepareTable(VersionsTable());
    store.Execute(
        QStringLiteral("INSERT INTO HostTables (Name, Version) VALUES (?1, ?2)"
                       " ON CONFLICT (Name) DO UPDATE SET Version = excluded.Version"),
        {name, version});
}

void HostTables::RequireVersion(ILayerStore& store, const QString& name, qint32 newest, const QString& text)
{
    if (VersionOf(store, name) > newest) {
        throw RunTimeError(
            int(HostError::TablesTooNew), text.arg(StorePlace::FileNameOf(store.Path())),
            QString::fromLatin1(HostTables::TableName));
    }
}

} // namespace Orvane
