// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapRights.h"

#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerRows.h"

namespace Orvane::MapRights {

QByteArrayList Granting(const QString& schema, const QString& role, MapRight right)
{
    const QByteArray map = QuotedName(schema);
    const QByteArray to = " TO " + QuotedName(role);
    const QByteArray rights = right == MapRight::Edit ? "SELECT, INSERT, UPDATE, DELETE" : "SELECT";
    QByteArrayList statements = Revoking(schema, role);
    statements << "GRANT USAGE ON SCHEMA " + map + to
               << "GRANT " + rights + " ON ALL TABLES IN SCHEMA " + map + to
               << "ALTER DEFAULT PRIVILEGES IN SCHEMA " + map + " GRANT " + rights + " ON TABLES" + to;
    if (right == MapRight::Edit) { // the version is the owner's, and news are not rewritten
        const QByteArray from = " FROM " + QuotedName(role);
        statements << "REVOKE INSERT, UPDATE, DELETE ON " + map + ".orvane_map, " + map + ".orvane_names"
                + from
                   << "REVOKE UPDATE ON " + map + ".orvane_news" + from;
    }
    return statements;
}

QByteArrayList Revoking(const QString& schema, const QString& role)
{
    const QByteArray map = QuotedName(schema);
    const QByteArray from = " FROM " + QuotedName(role);
    return {
        "ALTER DEFAULT PRIVILEGES IN SCHEMA " + map + " REVOKE ALL ON TABLES" + from,
        "REVOKE ALL ON ALL TABLES IN SCHEMA " + map + from, "REVOKE ALL ON SCHEMA " + map + from};
}

QByteArray OwnerQuery()
{
    return "SELECT pg_catalog.pg_get_userbyid(n.nspowner), pg_catalog.pg_has_role(n.nspowner, 'USAGE')"
           " FROM pg_catalog.pg_namespace AS n JOIN pg_catalog.pg_class AS c ON c.relnamespace = n.oid"
           " WHERE n.nspname = $1 AND c.relname = 'orvane_map' AND c.relkind = 'r'";
}

QByteArray HoldersQuery()
{
    return R"sql(
SELECT CASE WHEN a.grantee = 0 THEN 'public' ELSE pg_catalog.pg_get_userbyid(a.grantee)::text END AS role,
    EXISTS (SELECT FROM pg_catalog.pg_class AS l, pg_catalog.aclexplode(l.relacl) AS b
        WHERE l.relnamespace = n.oid AND l.relname = 'layers' AND b.grantee = a.grantee
            AND b.privilege_type = 'UPDATE')
FROM pg_catalog.pg_namespace AS n, pg_catalog.aclexplode(n.nspacl) AS a
WHERE n.nspname = $1 AND a.privilege_type = 'USAGE' AND a.grantee <> n.nspowner
ORDER BY role)sql";
}

std::vector<MapHolder> HoldersIn(const ServerRows& rows)
{
    std::vector<MapHolder> holders;
    holders.reserve(size_t(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row)
        holders.push_back({rows.Text(row, 0), rows.Flag(row, 1) ? MapRight::Edit : MapRight::Read});
    return holders;
}

} // namespace Orvane::MapRights
