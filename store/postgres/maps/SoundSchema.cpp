// SPDX-License-Identifier: MIT
#include "store/postgres/maps/SoundSchema.h"

#include "store/StoreTexts.h"
#include "store/postgres/link/ServerRows.h"
#include "store/postgres/maps/NoteFunction.h"
#include "store/shared/StoreErrors.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>

namespace Orvane::SoundSchema {

namespace {

// A query for the names of what must not be there. "map" is the schema, "tables" are its tables.
struct SchemaFault {
    const char* text;
    const char* query;
};

// A function may be called by a default, a trigger, an index, a condition, a rule, a type or an operator.
// Defaults are plain constants, or what the store's own tables have.
constexpr std::array SchemaFaults = {
    SchemaFault{
        StoreTexts::UnsoundRights,
        "SELECT nspname FROM pg_namespace, aclexplode(nspacl) AS a"
        " WHERE oid = (SELECT oid FROM map) AND a.grantee = 0 AND a.privilege_type = 'CREATE'"},
    SchemaFault{
        StoreTexts::UnsoundView,
        "SELECT relname FROM pg_class WHERE relnamespace = (SELECT oid FROM map) AND relkind IN ('v', 'm')"},
    SchemaFault{
        StoreTexts::UnsoundTable,
        "SELECT relname FROM pg_class AS c WHERE relnamespace = (SELECT oid FROM map)"
        " AND (relkind NOT IN ('r', 'i', 'S') OR relispartition OR relrowsecurity OR relhasrules OR "
        "reloftype <> 0"
        " OR EXISTS (SELECT FROM pg_inherits WHERE c.oid IN (inhrelid, inhparent)))"},
    SchemaFault{
        StoreTexts::UnsoundTrigger,
        "SELECT tgname FROM pg_trigger AS g JOIN pg_proc AS f ON f.oid = g.tgfoid"
        " WHERE tgrelid IN (SELECT oid FROM tables) AND NOT tgisinternal"
        " AND (f.pronamespace <> (SELECT oid FROM map) OR f.proname <> 'orvane_note' OR g.tgqual IS NOT "
        "NULL"
        " OR g.tgenabled <> 'O' OR g.tgattr::text <> ''"
        " OR (tgname::text, tgtype::integer, coalesce(tgoldtable::text, ''), coalesce(tgnewtable::text, ''))"
        " NOT IN (('orvane_insert', 4, '', 'new_rows'), ('orvane_update', 16, 'old_rows', 'new_rows'),"
        " ('orvane_delete', 8, 'old_rows', ''))"
        " OR NOT EXISTS (SELECT FROM arguments AS r WHERE r.oid = tgrelid AND r.bytes = tgargs))"},
    SchemaFault{
        StoreTexts::UnsoundSilence, // a table of the host gets back what it lacks when it is prepared
        "SELECT relname FROM tables AS c CROSS JOIN LATERAL"
        " (SELECT count(*) FROM pg_trigger WHERE tgrelid = c.oid AND NOT tgisinternal) AS own (number)"
        " WHERE number < 3 AND relname IN ('layers', 'layergroups', 'layergroupmembers')"},
    SchemaFault{
        StoreTexts::UnsoundObject,
        "SELECT proname FROM pg_proc WHERE pronamespace = (SELECT oid FROM map)"
        " AND (proname <> 'orvane_note' OR prosrc <> $2 OR prokind <> 'f' OR prosecdef OR pronargs <> 0"
        " OR prolang <> (SELECT oid FROM pg_language WHERE lanname = 'plpgsql')"
        " OR proconfig IS DISTINCT FROM ARRAY['search_path=pg_catalog, pg_temp'])"},
    SchemaFault{
        StoreTexts::UnsoundObject,
        "SELECT typname FROM pg_type AS t WHERE typnamespace = (SELECT oid FROM map)"
        " AND NOT (typtype = 'c' AND typrelid IN (SELECT oid FROM tables))"
        " AND NOT (typcategory = 'A' AND typelem <> 0)"
        " UNION ALL SELECT oprname FROM pg_operator WHERE oprnamespace = (SELECT oid FROM map)"
        " UNION ALL SELECT opcname FROM pg_opclass WHERE opcnamespace = (SELECT oid FROM map)"
        " UNION ALL SELECT opfname FROM pg_opfamily WHERE opfnamespace = (SELECT oid FROM map)"
        " UNION ALL SELECT conname FROM pg_conversion WHERE connamespace = (SELECT oid FROM map)"
        " UNION ALL SELECT stxname FROM pg_statistic_ext WHERE stxnamespace = (SELECT oid FROM map)"
        " UNION ALL SELECT collname FROM pg_collation WHERE collnamespace = (SELECT oid FROM map)"
        " AND NOT (collname = 'orvane_nocase' AND collprovider = 'i' AND collisdeterministic)"},
    SchemaFault{
        StoreTexts::UnsoundColumn,
        "SELECT c.relname || '.' || a.attname FROM tables AS c JOIN pg_attribute AS a ON a.attrelid = c.oid"
        " JOIN pg_type AS t ON t.oid = a.atttypid"
        " LEFT JOIN pg_attrdef AS d ON d.adrelid = c.oid AND d.adnum = a.attnum"
        " WHERE a.attnum > 0 AND NOT a.attisdropped"
        " AND (a.attgenerated <> '' OR t.typtype <> 'b' OR t.typnamespace <> 'pg_catalog'::regnamespace"
        " OR NOT coalesce(pg_get_expr(d.adbin, d.adrelid) ~"
        " '^(-?[0-9.]+|true|false|(''([^'']|'''')*''|NULL)(::[a-z ]+)?)$', TRUE)"
        " AND NOT (starts_with(c.relname, 'orvane_') AND pg_get_expr(d.adbin, d.adrelid)"
        " IN ('now()', 'clock_timestamp()', 'pg_current_xact_id()', 'SESSION_USER')))"},
    SchemaFault{
        StoreTexts::UnsoundIndex,
        "SELECT i.relname FROM pg_index AS x JOIN pg_class AS i ON i.oid = x.indexrelid"
        " WHERE x.indrelid IN (SELECT oid FROM tables) AND (x.indexprs IS NOT NULL OR x.indpred IS NOT NULL"
        " OR EXISTS (SELECT FROM pg_opclass WHERE oid = ANY (x.indclass)"
        " AND opcnamespace <> 'pg_catalog'::regnamespace))"},
    SchemaFault{
        StoreTexts::UnsoundCondition,
        "SELECT c.relname FROM tables AS c WHERE EXISTS (SELECT FROM pg_constraint WHERE conrelid = c.oid"
        " AND contype NOT IN ('p', 'u', 'f', 'n')) OR EXISTS (SELECT FROM pg_policy WHERE polrelid = c.oid)"
        " OR EXISTS (SELECT FROM pg_rewrite WHERE ev_class = c.oid)"},
    SchemaFault{
        StoreTexts::UnsoundReference,
        "SELECT c.relname FROM tables AS c JOIN pg_constraint AS k ON c.oid IN (k.conrelid, k.confrelid)"
        " WHERE k.contype = 'f' AND NOT (k.conrelid IN (SELECT oid FROM tables)"
        " AND k.confrelid IN (SELECT oid FROM tables))"},
};

// What the triggers of each table may have as arguments, see NoteFunction: a zero byte ends each.
constexpr const char* Arguments
    = "numbered AS (SELECT c.oid, n.name, k.conkey FROM tables AS c"
      " JOIN (VALUES ('layerid'), ('id'), ('')) AS n (name)"
      " ON n.name = '' OR (n.name = 'id') = (c.relname = 'layergroups')"
      " LEFT JOIN pg_constraint AS k ON k.conrelid = c.oid AND k.contype = 'p'),"
      " arguments AS (SELECT n.oid, convert_to(n.name, getdatabaseencoding()) || decode('00', 'hex')"
      " || coalesce((SELECT string_agg(convert_to(a.attname, getdatabaseencoding()) || decode('00', 'hex'), "
      "''"
      " ORDER BY array_position(n.conkey, a.attnum)) FROM pg_attribute AS a"
      " WHERE a.attrelid = n.oid AND a.attnum = ANY (n.conkey)), '') AS bytes FROM numbered AS n) ";

} // namespace

QByteArray Query()
{
    QByteArrayList faults;
    for (const SchemaFault& fault : SchemaFaults) {
        const QByteArray number = QByteArray::number(int(faults.size()));
        faults << "SELECT " + number + " AS fault, q.name::text FROM (" + fault.query + ") AS q (name)";
    }
    return "WITH map AS (SELECT oid FROM pg_namespace WHERE nspname = $1),"
           " tables AS (SELECT oid, relname FROM pg_class WHERE relnamespace = (SELECT oid FROM map)"
           " AND relkind = 'r'), "
        + QByteArray(Arguments) + faults.join(" UNION ALL ") + " ORDER BY 1, 2 LIMIT 1";
}

ServerValues Values(const QString& schema)
{
    return {schema.toUtf8(), NoteFunction::Body()};
}

void Require(const ServerRows& answer, const StoreErrors& errors)
{
    if (answer.Count() == 0)
        return;
    const size_t number = std::min(size_t(answer.Number(0, 0)), SchemaFaults.size() - 1); // whatever it says
    const SchemaFault& fault = SchemaFaults[number];
    throw errors.Error(ErrorNumber::NotALayerDatabase, fault.text, answer.Text(0, 1));
}

} // namespace Orvane::SoundSchema
