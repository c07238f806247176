// SPDX-License-Identifier: MIT
#include "store/sqlite/repair/FileDamage.h"

#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

bool IsAboutAnIndex(const QString& message)
{
    return message.contains(QLatin1String("missing from index"))
        || message.contains(QLatin1String("wrong # of entries in index"));
}

} // namespace

std::vector<FileDamage> FindDamage(SqliteLayerDatabase& database)
{
    std::vector<FileDamage> damage;
    const auto rows = database.OpenQuery(QStringLiteral("PRAGMA integrity_check(20)"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const QString message = ToText(rows->Field("integrity_check"));
        if (message != QLatin1String("ok"))
            damage.push_back({message, IsAboutAnIndex(message)});
    }
    return damage;
}

void RepairDamage(SqliteLayerDatabase& database)
{
    database.Execute(QStringLiteral("REINDEX"));
}

} // namespace Orvane
