// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapNews.h"

namespace Orvane::MapNews {

namespace {

constexpr qint64 PruningLock = 0x4F52564F; // the upper half of its number: next to that of MapPresence
constexpr int PrunedAtOnce = 5000; // so that nobody waits for it

} // namespace

QByteArray SnapshotQuery()
{
    return "SELECT pg_current_snapshot()";
}

// The index on tx finds the candidates; a transaction that began earlier may have been stored later. Numbers
// that are still to come are those of another server, from which the map was brought here.
QByteArray MissedQuery()
{
    return "SELECT id, tab, ids FROM orvane_news"
           " WHERE tx >= pg_snapshot_xmin($1::pg_snapshot) AND NOT pg_visible_in_snapshot(tx, "
           "$1::pg_snapshot) AND tx < pg_snapshot_xmax(pg_current_snapshot())"
           " AND ($2 = '' OR token IS NULL OR NOT starts_with(token::text, $2))"
           " ORDER BY id LIMIT "
        + QByteArray::number(MostMissed + 1);
}

ServerValues MissedValues(const Snapshot& seen, const QByteArray& ownTokens)
{
    return {seen, ownTokens};
}

QByteArray MayPruneQuery()
{
    return "SELECT has_table_privilege('orvane_news', 'DELETE')";
}

// Two who remove the same rows would wait for each other.
QByteArray Pruning()
{
    return "DELETE FROM orvane_news WHERE id IN (SELECT id FROM orvane_news"
           " WHERE id < (SELECT max(id) - 10000 FROM orvane_news) AND at < now() - interval '1 day'"
           " ORDER BY id LIMIT "
        + QByteArray::number(PrunedAtOnce) + ") AND (SELECT pg_try_advisory_xact_lock(("
        + QByteArray::number(PruningLock)
        + "::bigint << 32) | oid::bigint) FROM pg_namespace WHERE nspname = current_schema())";
}

} // namespace Orvane::MapNews
