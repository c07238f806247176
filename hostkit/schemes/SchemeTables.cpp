// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeTables.h"

#include "hostkit/common/HostTables.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "store/ILayerStore.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QCoreApplication>

#include <algorithm>

namespace Orvane {

namespace {

const QString Schemes = QStringLiteral("LayerSchemes");
const QString Values = QStringLiteral("LayerSchemeValues");

StoreTable SchemesTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString schemeID = QStringLiteral("SchemeID");
    const QString name = QStringLiteral("Name");
    return {
        Schemes,
        {{schemeID, StoreType::Whole},
         {name, StoreType::Text, Nulls::Refused},
         {QStringLiteral("IsCurrent"), StoreType::Flag, Nulls::Refused, QStringLiteral("FALSE")}},
        {schemeID},
        {name}};
}

StoreType TypeOf(ColumnKind kind)
{
    if (kind == ColumnKind::Real)
        return StoreType::Real;
    return kind == ColumnKind::Flag ? StoreType::Flag : StoreType::Whole;
}

StoreTable ValuesTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString layerID = QStringLiteral("LayerID");
    const QString schemeID = QStringLiteral("SchemeID");
    StoreTable table{
        Values,
        {{layerID, StoreType::Whole, Nulls::Refused, {}, QStringLiteral("Layers"), layerID},
         {schemeID, StoreType::Whole, Nulls::Refused}},
        {layerID, schemeID}}; // layer first, to find the values of a deleted layer
    for (const LayerColumn& column : SchemeColumns::All)
        table.columns.push_back({QString::fromLatin1(column.name), TypeOf(column.kind)});
    return table;
}

} // namespace

void SchemeTables::Create()
{
    if (AreCurrent())
        return;
    Transaction transaction(m_database);
    m_database.PrepareTable(SchemesTable());
    if (m_database.HasTable(Values))
        AddMissingColumns();
    else
        m_database.PrepareTable(ValuesTable());
    HostTables::SetVersion(m_database, Schemes, Version);
    transaction.Commit();
}

bool SchemeTables::HaveSchemes()
{
    if (!m_database.HasTable(Schemes))
        return false;
    if (!AreCurrent()) {
        HostTables::RequireVersion(
            m_database, Schemes, Version,
            QCoreApplication::translate(
                "SchemeTables",
                "The layer schemes of \"%1\" were written by a newer program and cannot be read."));
        if (m_database.IsReadOnly())
            return HasAllColumns() && HasRow();
        Create();
    }
    return HasRow();
}

bool SchemeTables::AreCurrent()
{
    return HostTables::VersionOf(m_database, Schemes) == Version;
}

bool SchemeTables::HasRow()
{
    return !m_database.OpenQuery(QStringLiteral("SELECT SchemeID FROM LayerSchemes LIMIT 1"))->AtEOF();
}

bool SchemeTables::HasAllColumns()
{
    return std::all_of(
        SchemeColumns::All.begin(), SchemeColumns::All.end(), [this](const LayerColumn& column) {
            return m_database.HasColumn(Values, QString::fromLatin1(column.name));
        });
}

void SchemeTables::AddMissingColumns()
{
    QStringList missing;
    for (const LayerColumn& column : SchemeColumns::All) {
        const QString name = QString::fromLatin1(column.name);
        if (!m_database.HasColumn(Values, name))
            missing << name;
    }
    m_database.PrepareTable(ValuesTable());
    for (const QString& column : missing) {
        m_database.Execute(QStringLiteral("UPDATE LayerSchemeValues SET %1 = Layers.%1 FROM Layers"
                                          " WHERE Layers.LayerID = LayerSchemeValues.LayerID")
                               .arg(column));
    }
}

QStringList SchemeTables::Names()
{
    QStringList names;
    const auto schemes
        = m_database.OpenQuery(QStringLiteral("SELECT Name FROM LayerSchemes ORDER BY SchemeID"));
    for (; !schemes->AtEOF(); schemes->MoveNext())
        names << ToText(schemes->Field("Name"));
    return names;
}

QString SchemeTables::CurrentName()
{
    const auto scheme = m_database.OpenQuery(
        QStringLiteral("SELECT Name FROM LayerSchemes ORDER BY IsCurrent DESC, SchemeID LIMIT 1"));
    return ToText(scheme->Field("Name"));
}

qint32 SchemeTables::IDOf(const QString& name)
{
    const auto scheme
        = m_database.OpenQuery(QStringLiteral("SELECT SchemeID FROM LayerSchemes WHERE Name = ?1"), {name});
    return scheme->AtEOF() ? NoScheme : ToInt32(scheme->Field("SchemeID"));
}

qint32 SchemeTables::Insert(const QString& name)
{
    m_database.Execute(QStringLiteral("INSERT INTO LayerSchemes (Name) VALUES (?1)"), {name});
    return IDOf(name);
}

void SchemeTables::MakeCurrent(qint32 schemeID)
{
    m_database.Execute(QStringLiteral("UPDATE LayerSchemes SET IsCurrent = (SchemeID = ?1)"), {schemeID});
}

void SchemeTables::DropValues(qint32 schemeID)
{
    m_database.Execute(QStringLiteral("DELETE FROM LayerSchemeValues WHERE SchemeID = ?1"), {schemeID});
}

void SchemeTables::Remove(qint32 schemeID)
{
    DropValues(schemeID);
    m_database.Execute(QStringLiteral("DELETE FROM LayerSchemes WHERE SchemeID = ?1"), {schemeID});
}

} // namespace Orvane
