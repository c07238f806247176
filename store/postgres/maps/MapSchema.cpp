// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapSchema.h"

#include "store/postgres/link/QuotedName.h"
#include "store/postgres/maps/NoteFunction.h"
#include "store/postgres/maps/TableSql.h"

#include <OrvaneShellLib/LayerColumns.h>

#include <QLocale>

#include <array>

namespace Orvane::MapSchema {

namespace {

using TableSql::TextOrder;

// ICU's locale compares letters and accents, but not case. Texts that differ only in case are still
// different.
constexpr std::array OwnTables = {
    "CREATE COLLATION orvane_nocase (provider = icu, locale = 'und-u-ks-level2', deterministic = true)",
    "CREATE TABLE orvane_map (version integer NOT NULL, title text COLLATE \"C\" NOT NULL,"
    " made_at timestamptz NOT NULL DEFAULT now(), made_by text COLLATE \"C\" NOT NULL DEFAULT session_user)",
    "CREATE TABLE orvane_names (table_name text COLLATE \"C\", column_name text COLLATE \"C\","
    " spelled text COLLATE \"C\" NOT NULL, PRIMARY KEY (table_name, column_name))",
    "CREATE TABLE orvane_news (id bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY,"
    " tx xid8 NOT NULL DEFAULT pg_current_xact_id(), token uuid,"
    " at timestamptz NOT NULL DEFAULT clock_timestamp(), author text COLLATE \"C\" NOT NULL DEFAULT "
    "session_user,"
    " tab text COLLATE \"C\" NOT NULL, ids text COLLATE \"C\" NOT NULL)",
    "CREATE INDEX orvane_news_tx ON orvane_news (tx)",
};

constexpr std::array Version2 = {
    "CREATE INDEX LayerNameIDX ON Layers (Name)",
    "CREATE INDEX GroupOrderingIDX ON LayerGroups (GroupOrdering)",
    "CREATE INDEX MemberOrderingIDX ON LayerGroupMembers (GroupID, Ordering, LayerID)",
    "CREATE INDEX MemberLayerIDX ON LayerGroupMembers (LayerID, GroupID)",
};

QByteArrayList Listed(const auto& statements)
{
    QByteArrayList list;
    for (const char* statement : statements)
        list << statement;
    return list;
}

StoreType TypeOfKind(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Text:
        return StoreType::Text;
    case ColumnKind::Flag:
        return StoreType::Flag;
    case ColumnKind::Real:
        return StoreType::Real;
    default:
        return StoreType::Whole;
    }
}

QString DefaultOfColumn(const LayerColumn& column)
{
    switch (column.kind) {
    case ColumnKind::Key:
        return {};
    case ColumnKind::Text:
        return QStringLiteral("''");
    case ColumnKind::Flag:
        return column.defaultValue != 0 ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    default:
        return QString::number(column.defaultValue, 'g', QLocale::FloatingPointShortest);
    }
}

StoreTable Layers(qint32 version)
{
    StoreTable table{QStringLiteral("Layers"), {}, {}};
    for (const LayerColumn& column : LayerColumns) {
        const QString name = QString::fromLatin1(column.name);
        if (column.since == version)
            table.columns.push_back(
                {name, TypeOfKind(column.kind), StoreColumn::Nulls::Allowed, DefaultOfColumn(column)});
        if (column.kind == ColumnKind::Key)
            table.key.push_back(name);
    }
    return table;
}

StoreTable Groups()
{
    using Nulls = StoreColumn::Nulls;
    const QString id = QStringLiteral("ID");
    const QString no = QStringLiteral("FALSE");
    return {
        QStringLiteral("LayerGroups"),
        {{id, StoreType::Whole},
         {QStringLiteral("Name"), StoreType::Text, Nulls::Allowed, QStringLiteral("''")},
         {QStringLiteral("GroupOrdering"), StoreType::Whole, Nulls::Allowed, QStringLiteral("0")},
         {QStringLiteral("Pseudo"), StoreType::Flag, Nulls::Allowed, no},
         {QStringLiteral("Expanded"), StoreType::Flag, Nulls::Allowed, no}},
        {id}};
}

StoreTable Members()
{
    using Nulls = StoreColumn::Nulls;
    const QString group = QStringLiteral("GroupID");
    const QString layer = QStringLiteral("LayerID");
    return {
        QStringLiteral("LayerGroupMembers"),
        {{group, StoreType::Whole, Nulls::Refused, {}, QStringLiteral("LayerGroups"), QStringLiteral("ID")},
         {layer, StoreType::Whole, Nulls::Refused, {}, QStringLiteral("Layers"), layer},
         {QStringLiteral("Ordering"), StoreType::Whole, Nulls::Allowed, QStringLiteral("0")}},
        {group, layer}};
}

// What a version adds to the one before it.
QByteArrayList Step(qint32 version)
{
    const StoreTable layers = Layers(version);
    if (version == 1) {
        return TableSql::Making(layers, TextOrder::WithoutCase) + TableSql::Making(Groups())
            + TableSql::Making(Members());
    }
    QByteArrayList statements = version == 2 ? Listed(Version2) : QByteArrayList();
    for (const StoreColumn& column : layers.columns)
        statements += TableSql::Adding(layers.name, column, TextOrder::WithoutCase);
    return statements;
}

QByteArrayList StepsAfter(qint32 version)
{
    QByteArrayList statements;
    while (version < CurrentVersion)
        statements += Step(++version);
    return statements;
}

} // namespace

QByteArray SearchPath(const QString& schema)
{
    return QuotedName(schema) + ", pg_temp";
}

QByteArrayList Creation(const QString& schema, const QString& title)
{
    QByteArrayList statements{
        "CREATE SCHEMA " + QuotedName(schema), "SET LOCAL search_path = " + SearchPath(schema)};
    statements += Listed(OwnTables);
    statements << NoteFunction::Creation();
    statements += StepsAfter(0);
    statements << "INSERT INTO orvane_map (version, title) VALUES (" + QByteArray::number(CurrentVersion)
            + ", " + TableSql::QuotedText(title) + ')';
    return statements;
}

QByteArrayList Migration(qint32 version)
{
    QByteArrayList statements = StepsAfter(version);
    if (!statements.isEmpty())
        statements << "UPDATE orvane_map SET version = " + QByteArray::number(CurrentVersion)
                   << NoteFunction::SchemaNotice();
    return statements;
}

} // namespace Orvane::MapSchema
