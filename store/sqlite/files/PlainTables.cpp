// SPDX-License-Identifier: MIT
#include "store/sqlite/files/PlainTables.h"

#include "store/StoreTexts.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <QByteArrayList>

namespace Orvane {

namespace {

// A query for the names of what must not be there; %1 stands for the tables.
struct Fault {
    const char* text;
    const char* query;
};

// The word "CHECK" is found in the definition, because no pragma tells it. A default with a bracket calls a
// function.
constexpr std::array Faults = {
    Fault{
        StoreTexts::UnsoundView,
        "SELECT name FROM sqlite_schema WHERE type = 'view' AND name COLLATE NOCASE IN %1"},
    Fault{
        StoreTexts::UnsoundTable,
        "SELECT name FROM sqlite_schema WHERE name COLLATE NOCASE IN %1"
        " AND (type <> 'table' OR coalesce(rootpage, 0) = 0)"},
    Fault{
        StoreTexts::UnsoundTrigger,
        "SELECT name FROM sqlite_schema WHERE type = 'trigger' AND tbl_name COLLATE NOCASE IN %1"},
    Fault{
        StoreTexts::UnsoundColumn,
        "SELECT t.name || '.' || c.name FROM sqlite_schema AS t, pragma_table_xinfo(t.name) AS c"
        " WHERE t.type = 'table' AND t.name COLLATE NOCASE IN %1"
        " AND (c.hidden <> 0 OR instr(c.dflt_value, '(') > 0)"},
    Fault{
        StoreTexts::UnsoundIndex,
        "SELECT i.name FROM sqlite_schema AS t, pragma_index_list(t.name) AS i, pragma_index_xinfo(i.name) "
        "AS c"
        " WHERE t.type = 'table' AND t.name COLLATE NOCASE IN %1 AND (c.cid = -2 OR i.partial <> 0)"},
    Fault{
        StoreTexts::UnsoundCondition,
        "SELECT name FROM sqlite_schema WHERE type = 'table' AND name COLLATE NOCASE IN %1"
        " AND upper(sql) GLOB '*[^A-Z0-9_]CHECK[^A-Z0-9_]*'"},
};

QByteArray NameList()
{
    QByteArrayList names;
    for (const char* name : PlainTableNames)
        names << '\'' + QByteArray(name) + '\'';
    return '(' + names.join(", ") + ')';
}

} // namespace

void RequirePlainTables(SqliteConnection& connection)
{
    for (const Fault& fault : Faults) {
        const QString found = connection.Text(QByteArray(fault.query).replace("%1", NameList()));
        if (!found.isNull())
            throw connection.Errors().Error(ErrorNumber::NotALayerDatabase, fault.text, found);
    }
}

} // namespace Orvane
