// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerSchema.h"

#include "store/StoreTexts.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <OrvaneShellLib/LayerColumns.h>

#include <QByteArrayList>
#include <QLocale>

#include <algorithm>
#include <array>
#include <sqlite3.h>

namespace Orvane::LayerSchema {

namespace {

// All columns except keys may be null: a null property is not known.
constexpr const char* Version1 = R"sql(
CREATE TABLE LayerGroups (
    ID INTEGER PRIMARY KEY,
    Name TEXT DEFAULT '',
    GroupOrdering INTEGER DEFAULT 0,
    Pseudo INTEGER DEFAULT 0,
    Expanded INTEGER DEFAULT 0
);
CREATE TABLE LayerGroupMembers (
    GroupID INTEGER NOT NULL REFERENCES LayerGroups (ID) ON DELETE CASCADE,
    LayerID INTEGER NOT NULL REFERENCES Layers (LayerID) ON DELETE CASCADE,
    Ordering INTEGER DEFAULT 0,
    PRIMARY KEY (GroupID, LayerID)
) WITHOUT ROWID;
CREATE UNIQUE INDEX LayerIDIDX ON Layers (LayerID);
CREATE UNIQUE INDEX IDIDX ON LayerGroups (ID);
)sql";

// The statistics are those of a large map. Without them the tree is read by layer and then sorted, which
// takes twice as long.
constexpr const char* Version2 = R"sql(
CREATE INDEX LayerNameIDX ON Layers (Name);
CREATE INDEX GroupOrderingIDX ON LayerGroups (GroupOrdering);
CREATE INDEX MemberOrderingIDX ON LayerGroupMembers (GroupID, Ordering, LayerID);
CREATE INDEX MemberLayerIDX ON LayerGroupMembers (LayerID, GroupID);
ANALYZE sqlite_schema;
INSERT INTO sqlite_stat1 (tbl, idx, stat) VALUES
    ('Layers', 'LayerIDIDX', '100000 1'),
    ('Layers', 'LayerNameIDX', '100000 1'),
    ('LayerGroups', 'IDIDX', '2000 1'),
    ('LayerGroups', 'GroupOrderingIDX', '2000 1'),
    ('LayerGroupMembers', 'LayerGroupMembers', '100000 50 1'),
    ('LayerGroupMembers', 'MemberOrderingIDX', '100000 50 1 1'),
    ('LayerGroupMembers', 'MemberLayerIDX', '100000 1 1');
ANALYZE sqlite_schema;
)sql";

// What version n + 1 adds besides the columns of layers, at index n.
constexpr std::array Steps = {Version1, Version2};

constexpr std::array ColumnChecks = {
    "SELECT ID, Name, GroupOrdering, Pseudo, Expanded FROM LayerGroups LIMIT 0",
    "SELECT GroupID, LayerID, Ordering FROM LayerGroupMembers LIMIT 0",
};

QByteArray Definition(const LayerColumn& column)
{
    const QByteArray name = column.name;
    const QByteArray number = QByteArray::number(column.defaultValue, 'g', QLocale::FloatingPointShortest);
    switch (column.kind) {
    case ColumnKind::Key:
        return name + " INTEGER PRIMARY KEY";
    case ColumnKind::Text:
        return name + " TEXT COLLATE NOCASE DEFAULT ''";
    case ColumnKind::Real:
        return name + " REAL DEFAULT " + number;
    default:
        return name + " INTEGER DEFAULT " + number;
    }
}

// SQL for the columns that a version adds: a new table, or more columns for the existing one.
QByteArray ColumnsOf(qint32 version)
{
    QByteArrayList definitions;
    for (const LayerColumn& column : LayerColumns) {
        if (column.since == version)
            definitions << Definition(column);
    }
    if (version == 1)
        return "CREATE TABLE Layers (" + definitions.join(", ") + ");";
    QByteArray script;
    for (const QByteArray& definition : definitions)
        script += "ALTER TABLE Layers ADD COLUMN " + definition + ';';
    return script;
}

// A query that fails unless the file has all columns of that version.
QByteArray LayerCheck(qint32 version)
{
    QByteArrayList names;
    for (const LayerColumn& column : LayerColumns) {
        if (column.since <= version)
            names << column.name;
    }
    return "SELECT " + names.join(", ") + " FROM Layers LIMIT 0";
}

qint32 VersionOf(SqliteConnection& connection)
{
    return connection.Number("PRAGMA user_version");
}

void RunSteps(SqliteConnection& connection)
{
    for (qint32 version = VersionOf(connection); version < CurrentVersion; ++version)
        connection.Run(
            ColumnsOf(version + 1) + (size_t(version) < Steps.size() ? Steps[size_t(version)] : ""));
    connection.Run("PRAGMA user_version = " + QByteArray::number(CurrentVersion));
}

} // namespace

void Create(SqliteConnection& connection)
{
    connection.Run("BEGIN IMMEDIATE");
    connection.Run("PRAGMA application_id = " + QByteArray::number(ApplicationID));
    RunSteps(connection);
    connection.Run("COMMIT");
}

void CheckVersion(SqliteConnection& connection)
{
    const qint32 version = VersionOf(connection);
    if (version < 0 || version > CurrentVersion)
        throw connection.Errors().Error(ErrorNumber::DatabaseTooNew, StoreTexts::TooNew);
}

void Migrate(SqliteConnection& connection)
{
    if (VersionOf(connection) >= CurrentVersion)
        return;
    connection.Run("BEGIN IMMEDIATE");
    RunSteps(connection);
    connection.Run("COMMIT");
}

void Check(SqliteConnection& connection)
{
    try {
        connection.Run(LayerCheck(std::max(VersionOf(connection), 1)));
        for (const char* query : ColumnChecks)
            connection.Run(query);
    } catch (const RunTimeError&) {
        if ((sqlite3_errcode(connection.Handle()) & 0xFF) != SQLITE_ERROR) // the file could not be read
            throw;
        throw connection.Errors().Error(ErrorNumber::NotALayerDatabase, StoreTexts::Damaged);
    }
}

} // namespace Orvane::LayerSchema
