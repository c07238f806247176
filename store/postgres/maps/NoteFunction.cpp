// SPDX-License-Identifier: MIT
#include "store/postgres/maps/NoteFunction.h"

#include "store/StoreTable.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/maps/TableSql.h"

#include <algorithm>

namespace Orvane::NoteFunction {

namespace {

// Which groups are expanded is stored, but is no news: each looks at the map in another way. The first
// argument is the column that says which layer or group changed, or ''; the others are the primary
// key. Names of the schema are written by format, so that the text is the same in each map.
constexpr const char* Text = R"sql(
DECLARE
    number integer := coalesce(nullif(current_setting('orvane.statements', true), ''), '0')::integer + 1;
    id_column text := TG_ARGV[0];
    key_columns text := (SELECT string_agg(quote_ident(k), ', ') FROM unnest(TG_ARGV[1:]) AS k);
    changed text := CASE TG_OP WHEN 'DELETE' THEN 'old_rows' ELSE 'new_rows' END;
    ids text;
    note text;
BEGIN
    IF id_column = '' OR number > 100 THEN
        EXECUTE format('SELECT ''*'' FROM %I LIMIT 1', changed) INTO ids;
    ELSIF TG_OP = 'UPDATE' AND quote_ident(id_column) IS DISTINCT FROM key_columns THEN
        EXECUTE format('SELECT CASE WHEN count(*) > 0 THEN coalesce(string_agg(k::text, '',''), ''*'') END'
            ' FROM (SELECT %1$I AS k FROM new_rows UNION SELECT %1$I FROM old_rows) AS r', id_column) INTO ids;
    ELSE
        EXECUTE format('SELECT CASE WHEN count(*) > 0 THEN coalesce(string_agg(DISTINCT %I::text, '',''), ''*'') END'
            ' FROM %I', id_column, changed) INTO ids;
    END IF;
    IF ids IS NULL THEN
        RETURN NULL;
    END IF;
    PERFORM set_config('orvane.statements', number::text, true);
    IF key_columns IS NOT NULL AND current_setting('orvane.records', true) = 'on'
        AND to_regclass('pg_temp.orvane_log') IS NOT NULL THEN
        INSERT INTO pg_temp.orvane_log (statement, tab, columns)
            SELECT number, TG_RELID, string_agg(attnum::text, ',' ORDER BY attnum) FROM pg_attribute
            WHERE attrelid = TG_RELID AND attnum > 0 AND NOT attisdropped;
        EXECUTE 'INSERT INTO pg_temp.orvane_log (statement, tab, before, after) SELECT $1, $2, ' || CASE TG_OP
            WHEN 'INSERT' THEN 'NULL, (new_rows.*)::text FROM new_rows'
            WHEN 'DELETE' THEN '(old_rows.*)::text, NULL FROM old_rows'
            ELSE format('(old_rows.*)::text, (new_rows.*)::text'
                ' FROM old_rows FULL JOIN new_rows USING (%s)', key_columns)
            END USING number, TG_RELID;
    END IF;
    IF TG_OP = 'UPDATE' AND TG_TABLE_NAME = 'layergroups' THEN
        EXECUTE 'SELECT min(''group'') FROM new_rows AS n FULL JOIN old_rows AS o USING (id)'
            ' WHERE to_jsonb(n) - ''expanded'' IS DISTINCT FROM to_jsonb(o) - ''expanded''' INTO note;
        IF note IS NULL THEN
            RETURN NULL;
        END IF;
    END IF;
    IF number > 101 THEN
        RETURN NULL;
    ELSIF number > 100 OR octet_length(ids) > 7000 THEN
        ids := '*';
    END IF;
    EXECUTE format('INSERT INTO %I.orvane_news (token, tab, ids)'
        ' VALUES (nullif(current_setting(''orvane.token'', true), '''')::uuid, $1, $2)'
        ' RETURNING id || '' '' || tab || '' '' || ids', TG_TABLE_SCHEMA)
        USING CASE WHEN number > 100 THEN '*' ELSE TG_TABLE_NAME END, ids INTO note;
    PERFORM pg_notify('orvane_' || (SELECT relnamespace FROM pg_class WHERE oid = TG_RELID), note);
    RETURN NULL;
END
)sql";

bool HasServerName(const QString& name, const char* serverName)
{
    return TableSql::ServerName(name) == QLatin1String(serverName);
}

// Which column holds the numbers that the news tell; empty for none.
QString NumberColumn(const StoreTable& table)
{
    if (HasServerName(table.name, "layergroups"))
        return QStringLiteral("id");
    const bool namesLayers
        = std::any_of(table.columns.begin(), table.columns.end(), [](const StoreColumn& column) {
              return HasServerName(column.name, "layerid") && column.type == StoreType::Whole;
          });
    return namesLayers ? QStringLiteral("layerid") : QString();
}

QByteArray Arguments(const StoreTable& table)
{
    QByteArrayList arguments{TableSql::QuotedText(NumberColumn(table))};
    for (const QString& key : table.key)
        arguments << TableSql::QuotedText(TableSql::ServerName(key));
    return arguments.join(", ");
}

} // namespace

QByteArray Body()
{
    return Text;
}

QByteArray Creation()
{
    return QByteArray("CREATE FUNCTION ") + Name
        + "() RETURNS trigger LANGUAGE plpgsql SET search_path = pg_catalog, pg_temp AS $note$" + Text
        + "$note$";
}

QByteArrayList Triggers(const StoreTable& table)
{
    QByteArrayList statements;
    for (const Trigger& trigger : AllTriggers) {
        statements << QByteArray("CREATE TRIGGER ") + trigger.name + " AFTER " + trigger.event + " ON "
                + QuotedName(TableSql::ServerName(table.name)) + " REFERENCING " + trigger.rows
                + " FOR EACH STATEMENT EXECUTE FUNCTION " + Name + '(' + Arguments(table) + ')';
    }
    return statements;
}

// Rows that go with another row are removed, by some servers, with the rights of the tables' owner.
QByteArrayList LogCreation()
{
    return {
        "CREATE TEMPORARY TABLE IF NOT EXISTS orvane_log"
        " (statement integer, tab oid, columns text, before text, after text) ON COMMIT DELETE ROWS",
        "GRANT INSERT ON pg_temp.orvane_log TO PUBLIC"};
}

QByteArray Channel(quint32 schema)
{
    return "orvane_" + QByteArray::number(schema);
}

QByteArray SchemaNotice()
{
    return QByteArray("SELECT pg_catalog.pg_notify(pg_catalog.concat('orvane_', oid), '") + SchemaChanged
        + "') FROM pg_catalog.pg_namespace WHERE nspname = pg_catalog.current_schema()";
}

} // namespace Orvane::NoteFunction
