// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapCatalogue.h"

#include "store/StoreTexts.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/MapPresence.h"
#include "store/postgres/maps/MapSchema.h"
#include "store/postgres/maps/SoundSchema.h"
#include "store/shared/WorkWatch.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace Orvane::MapCatalogue {

namespace {

constexpr int ExclusionTries = 10; // half a second: a program that has closed the map may still be leaving
constexpr const char* ExclusionPause = "SELECT pg_sleep(0.05)";
constexpr const char* BeginReading = "BEGIN READ ONLY";

// Maps that are made or migrated at this moment are left out: reading them would wait.
constexpr const char* MapsQuery = R"sql(
SELECT n.oid, n.nspname, pg_get_userbyid(n.nspowner), pg_has_role(n.nspowner, 'USAGE'),
    coalesce((SELECT has_table_privilege(l.oid, 'UPDATE') FROM pg_class AS l
        WHERE l.relnamespace = n.oid AND l.relname = 'layers'), FALSE)
FROM pg_class AS c JOIN pg_namespace AS n ON n.oid = c.relnamespace
WHERE c.relname = 'orvane_map' AND c.relkind = 'r'
    AND has_schema_privilege(n.oid, 'USAGE') AND has_table_privilege(c.oid, 'SELECT')
    AND (NOT starts_with(n.nspname, $1) OR pg_has_role(n.nspowner, 'USAGE'))
    AND EXISTS (SELECT FROM pg_class AS w WHERE w.relnamespace = n.oid AND w.relname = 'orvane_news'
        AND w.relkind = 'r' AND has_table_privilege(w.oid, 'SELECT'))
    AND NOT EXISTS (SELECT FROM pg_locks WHERE relation = c.oid AND mode = 'AccessExclusiveLock')
ORDER BY n.nspname)sql";

// The schemas whose own tables are as they should be, so that reading them runs nothing.
constexpr const char* PlainQuery = R"sql(
SELECT c.relnamespace FROM pg_class AS c JOIN pg_attribute AS a ON a.attrelid = c.oid
WHERE c.relkind = 'r' AND NOT c.relrowsecurity AND NOT c.relhasrules AND a.attgenerated = ''
    AND has_table_privilege(c.oid, 'SELECT') AND (c.relname, a.attname::text, a.atttypid) IN (
        ('orvane_map', 'version', 'integer'::regtype), ('orvane_map', 'title', 'text'::regtype),
        ('orvane_news', 'id', 'bigint'::regtype), ('orvane_news', 'at', 'timestamptz'::regtype))
GROUP BY 1 HAVING count(*) = 4)sql";

void FindMaps(ServerConnection& connection, std::vector<ListedMap>& maps)
{
    ServerPipeline pipeline(connection);
    const size_t found = pipeline.AddOnce(MapsQuery, {PartBeginning});
    const size_t present = pipeline.AddOnce(MapPresence::UsersQuery());
    pipeline.Finish();
    const ServerRows& rows = pipeline.Answer(found);
    const std::vector<MapUser> users = MapPresence::UsersIn(pipeline.Answer(present));
    maps.reserve(size_t(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row) {
        ListedMap map;
        map.number = quint32(rows.Number(row, 0));
        map.name = rows.Text(row, 1);
        map.owner = rows.Text(row, 2);
        map.isOwn = rows.Flag(row, 3);
        map.mayEdit = rows.Flag(row, 4);
        map.users = MapPresence::RolesOf(users, map.number, connection.Backend());
        maps.push_back(map);
    }
}

// Keeps the tables from being replaced, then looks at them. Nobody can make it wait.
void LockPlainMaps(ServerConnection& connection, std::vector<ListedMap>& maps)
{
    ServerPipeline pipeline(connection);
    for (const ListedMap& map : maps) {
        const QByteArray schema = QuotedName(map.name);
        pipeline.AddOnce(
            "LOCK TABLE " + schema + ".orvane_map, " + schema + ".orvane_news IN ACCESS SHARE MODE NOWAIT");
    }
    const size_t plain = pipeline.AddOnce(PlainQuery);
    pipeline.Finish();
    const ServerRows& rows = pipeline.Answer(plain);
    std::vector<quint32> numbers;
    numbers.reserve(size_t(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row)
        numbers.push_back(quint32(rows.Number(row, 0)));
    const auto isNone = [&](const ListedMap& map) {
        return std::find(numbers.begin(), numbers.end(), map.number) == numbers.end();
    };
    maps.erase(std::remove_if(maps.begin(), maps.end(), isNone), maps.end());
}

void ReadMaps(ServerConnection& connection, std::vector<ListedMap>& maps)
{
    ServerPipeline pipeline(connection);
    for (const ListedMap& map : maps) {
        const QByteArray schema = QuotedName(map.name);
        pipeline.AddOnce(
            "SELECT version, left(title, 1000),"
            " (SELECT CASE WHEN isfinite(at) THEN extract(epoch FROM at)::bigint END FROM ONLY "
            + schema + ".orvane_news ORDER BY id DESC LIMIT 1) FROM ONLY " + schema + ".orvane_map LIMIT 1");
    }
    pipeline.Finish();
    for (size_t number = 0; number < maps.size(); ++number) {
        const ServerRows& rows = pipeline.Answer(number);
        ListedMap& map = maps[number];
        if (rows.Count() == 0)
            continue;
        map.version = qint32(rows.Number(0, 0));
        map.title = rows.Text(0, 1);
        if (!rows.IsNull(0, 2))
            map.changed = QDateTime::fromSecsSinceEpoch(rows.Number(0, 2), Qt::UTC);
    }
}

// Runs work in a transaction, which is rolled back if it raises. No schema takes part in what it means.
void InTransaction(ServerConnection& connection, const char* begin, const std::function<void()>& work)
{
    try {
        ServerPipeline beginning(connection);
        beginning.AddOnce(begin);
        beginning.AddOnce(QByteArray("SET LOCAL search_path = ") + ServerConnection::SafePath);
        beginning.Finish();
        work();
        connection.Run("COMMIT");
    } catch (...) {
        try {
            connection.Run("ROLLBACK");
        } catch (...) { // the error that led here is the one to report
        }
        throw;
    }
}

std::optional<quint32> FindMap(ServerConnection& connection, const QString& name)
{
    const ServerRows rows = connection.Run(
        "SELECT n.oid FROM pg_namespace AS n JOIN pg_class AS c ON c.relnamespace = n.oid"
        " WHERE n.nspname = $1 AND c.relname = 'orvane_map'",
        {name.toUtf8()});
    if (rows.Count() == 0)
        return std::nullopt;
    return quint32(rows.Number(0, 0));
}

quint32 NumberOfMap(ServerConnection& connection, const QString& name)
{
    const std::optional<quint32> map = FindMap(connection, name);
    if (!map)
        throw StoreErrors(StoreErrors::Named{name}).Failure(StoreTexts::NoMapOfThatName);
    return *map;
}

QStringList OtherRoles(ServerConnection& connection, quint32 map)
{
    const std::vector<MapUser> users = MapPresence::UsersIn(connection.Run(MapPresence::UsersQuery()));
    return MapPresence::RolesOf(users, map, connection.Backend());
}

void LockAndRead(ServerConnection& connection, std::vector<ListedMap>& maps)
{
    LockPlainMaps(connection, maps);
    ReadMaps(connection, maps);
}

// False if the server refused it.
bool IsDone(ServerConnection& connection, const std::function<void()>& reading)
{
    try {
        InTransaction(connection, BeginReading, reading);
        return true;
    } catch (const ServerError&) {
        if (connection.IsLost() || connection.Watch().IsCancelled())
            throw;
        return false;
    }
}

// Those that can be read.
std::vector<ListedMap> MapsOneByOne(ServerConnection& connection)
{
    std::vector<ListedMap> found;
    InTransaction(connection, BeginReading, [&] { FindMaps(connection, found); });
    std::vector<ListedMap> maps;
    maps.reserve(found.size());
    for (const ListedMap& map : found) {
        std::vector<ListedMap> one{map};
        if (IsDone(connection, [&] { LockAndRead(connection, one); }))
            maps.insert(maps.end(), one.begin(), one.end());
    }
    return maps;
}

// Writing runs nothing that the schema contains, also if somebody changes it at this moment.
void RequireSound(ServerConnection& connection, const QString& name)
{
    connection.Run("LOCK TABLE " + QuotedName(name) + ".orvane_map IN SHARE ROW EXCLUSIVE MODE");
    const ServerRows faults = connection.Run(SoundSchema::Query(), SoundSchema::Values(name));
    SoundSchema::Require(faults, StoreErrors(StoreErrors::Named{name}));
}

// What CASCADE would take along: relations of the schema that no store has made, and those elsewhere that
// depend on its tables.
constexpr const char* StrangersQuery = R"sql(
WITH map AS (SELECT oid FROM pg_namespace WHERE nspname = $1),
own AS (SELECT c.oid, c.relkind IN ('r', 'S', 'i') AND (starts_with(c.relname, 'orvane_')
    OR c.relkind <> 'r' OR c.relname IN ('layers', 'layergroups', 'layergroupmembers')
    OR EXISTS (SELECT FROM pg_trigger AS g JOIN pg_proc AS f ON f.oid = g.tgfoid
        WHERE g.tgrelid = c.oid AND f.proname = 'orvane_note')) AS ofmap
    FROM pg_class AS c WHERE c.relnamespace = (SELECT oid FROM map) AND c.relkind NOT IN ('c', 'I', 't')),
strangers AS (
    SELECT oid FROM own WHERE NOT ofmap
    UNION SELECT r.ev_class FROM pg_depend AS d JOIN pg_rewrite AS r ON r.oid = d.objid
        WHERE d.classid = 'pg_rewrite'::regclass AND d.refclassid = 'pg_class'::regclass
            AND d.refobjid IN (SELECT oid FROM own)
    UNION SELECT conrelid FROM pg_constraint
        WHERE contype = 'f' AND confrelid IN (SELECT oid FROM own) AND conrelid NOT IN (SELECT oid FROM own))
SELECT n.nspname || '.' || c.relname FROM strangers AS s JOIN pg_class AS c ON c.oid = s.oid
    JOIN pg_namespace AS n ON n.oid = c.relnamespace ORDER BY 1 LIMIT 5)sql";

void RequireNothingElse(ServerConnection& connection, const QString& name)
{
    const ServerRows rows = connection.Run(StrangersQuery, {name.toUtf8()});
    QStringList strangers;
    for (int row = 0; row < rows.Count(); ++row)
        strangers << rows.Text(row, 0);
    if (!strangers.isEmpty())
        throw StoreErrors(StoreErrors::Named{name})
            .Failure(StoreTexts::MoreThanMap, strangers.join(QLatin1String(", ")));
}

// Nobody else has the map open, and nobody opens it until the transaction ends.
void Exclude(ServerConnection& connection, const QString& name)
{
    const quint32 map = NumberOfMap(connection, name);
    for (int attempt = 1; !connection.Run(MapPresence::Excluding(map)).Flag(0, 0); ++attempt) {
        if (attempt == ExclusionTries)
            throw StoreErrors(StoreErrors::Named{name})
                .Error(
                    ErrorNumber::DatabaseLocked, StoreTexts::OpenByOthers,
                    OtherRoles(connection, map).join(QLatin1String(", ")));
        connection.Run(ExclusionPause);
    }
}

void Drop(ServerConnection& connection, const QString& name)
{
    Exclude(connection, name);
    RequireNothingElse(connection, name);
    connection.Run("DROP SCHEMA " + QuotedName(name) + " CASCADE");
}

void GiveName(ServerConnection& connection, const QString& name, const QString& newName)
{
    connection.Run("UPDATE " + QuotedName(name) + ".orvane_map SET title = $1", {newName.toUtf8()});
    connection.Run("ALTER SCHEMA " + QuotedName(name) + " RENAME TO " + QuotedName(newName));
}

} // namespace

// One that cannot be read must not spoil the list.
std::vector<ListedMap> Maps(ServerConnection& connection)
{
    std::vector<ListedMap> maps;
    const auto readAll = [&] {
        FindMaps(connection, maps);
        LockAndRead(connection, maps);
    };
    return IsDone(connection, readAll) ? maps : MapsOneByOne(connection);
}

bool IsOpen(ServerConnection& connection, const QString& name)
{
    const std::optional<quint32> map = FindMap(connection, name);
    return map && !OtherRoles(connection, *map).isEmpty();
}

void RequireFree(ServerConnection& connection, const QString& name)
{
    if (connection.Run("SELECT FROM pg_namespace WHERE nspname = $1", {name.toUtf8()}).Count() > 0)
        throw connection.Errors().Failure(StoreTexts::MapExists);
}

void RequireReplaceable(ServerConnection& connection, const QString& name)
{
    InTransaction(connection, BeginReading, [&] {
        if (FindMap(connection, name))
            RequireNothingElse(connection, name);
        else
            RequireFree(connection, name);
    });
}

void Remove(ServerConnection& connection, const QString& name)
{
    InTransaction(connection, "BEGIN", [&] { Drop(connection, name); });
}

void Rename(ServerConnection& connection, const QString& name, const QString& newName)
{
    InTransaction(connection, "BEGIN", [&] {
        Exclude(connection, name);
        RequireSound(connection, name);
        GiveName(connection, name, newName);
    });
}

void PutInPlace(ServerConnection& connection, const QString& made, const QString& name, IfExists ifExists)
{
    InTransaction(connection, "BEGIN", [&] {
        if (ifExists == IfExists::Refuse)
            RequireFree(connection, name);
        else if (FindMap(connection, name))
            Drop(connection, name);
        RequireSound(connection, made);
        GiveName(connection, made, name);
    });
}

// The lock keeps others from reading the version meanwhile; who waited for it finds the map migrated.
void Migrate(ServerConnection& connection, const QString& name)
{
    const QByteArray own = QuotedName(name) + ".orvane_map";
    InTransaction(connection, "BEGIN", [&] {
        connection.Run("LOCK TABLE " + own + " IN ACCESS EXCLUSIVE MODE");
        const auto version = qint32(connection.Run("SELECT version FROM " + own).Number(0, 0));
        if (version >= MapSchema::CurrentVersion)
            return;
        Exclude(connection, name);
        RequireSound(connection, name);
        connection.Run("SET LOCAL search_path = " + MapSchema::SearchPath(name));
        ServerPipeline pipeline(connection);
        for (const QByteArray& statement : MapSchema::Migration(version))
            pipeline.AddOnce(statement);
        pipeline.Finish();
    });
}

} // namespace Orvane::MapCatalogue
