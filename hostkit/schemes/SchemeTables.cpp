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
const QString LaterColumn = QStringLiteral("Holds"); // stands for all that the first version lacks

StoreTable TableOfSchemes()
{
    using Nulls = StoreColumn::Nulls;
    const QString schemeID = QStringLiteral("SchemeID");
    const QString name = QStringLiteral("Name");
    return {
        Schemes,
        {{schemeID, StoreType::Whole},
         {name, StoreType::Text, Nulls::Refused},
         {QStringLiteral("IsCurrent"), StoreType::Flag, Nulls::Refused, QStringLiteral("FALSE")},
         {LaterColumn, StoreType::Whole},
         {QStringLiteral("SavedAt"), StoreType::Text},
         {QStringLiteral("Place"), StoreType::Whole},
         {QStringLiteral("AtOpening"), StoreType::Flag}},
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

SchemeParts PartsIn(const Value& number)
{
    return PartsOfNumber(Int32In(number).value_or(0));
}

Value StoredParts(SchemeParts holds)
{
    return holds == WholeScheme ? Value::Null() : Value(NumberOf(holds));
}

Value StoredTime(const QDateTime& time)
{
    const QString text = TextOfTime(time);
    return text.isEmpty() ? Value::Null() : Value(text);
}

// haveDetails: whether the row has the columns that came later.
SchemeDetails DetailsAt(const IRecordset& row, bool haveDetails)
{
    SchemeDetails scheme;
    scheme.id = ToInt32(row.Field("SchemeID"));
    scheme.name = ToText(row.Field("Name"));
    scheme.isCurrent = NumberIn(row.Field("IsCurrent")).value_or(0) != 0;
    if (!haveDetails)
        return scheme;
    scheme.holds = PartsIn(row.Field("Holds"));
    scheme.saved = TimeOfText(ToTextOrNone(row.Field("SavedAt")));
    scheme.place = Int32In(row.Field("Place"));
    scheme.isAtOpening = NumberIn(row.Field("AtOpening")).value_or(0) != 0;
    return scheme;
}

} // namespace

void SchemeTables::Create()
{
    if (AreCurrent())
        return;
    Transaction transaction(m_database);
    m_database.PrepareTable(TableOfSchemes());
    if (m_database.HasTable(Values))
        AddMissingColumns();
    else
        m_database.PrepareTable(ValuesTable());
    StoreVersion();
    transaction.Commit();
}

bool SchemeTables::HaveSchemes()
{
    if (!m_database.HasTable(Schemes))
        return false;
    if (!AreCurrent()) {
        HostTables::RequireVersion(
            m_database, Schemes, IsTooNew() ? 0 : PartialVersion,
            QCoreApplication::translate(
                "SchemeTables",
                "The layer schemes of \"%1\" were written by a newer program and cannot be read."));
        if (m_database.IsReadOnly())
            return HasAllColumns() && HasRow();
        Create();
    }
    return HasRow();
}

void SchemeTables::RefreshVersion()
{
    if (m_database.HasTable(Schemes) && AreCurrent())
        StoreVersion();
}

bool SchemeTables::AreCurrent()
{
    const qint32 version = HostTables::VersionOf(m_database, Schemes);
    return (version == Version || version == PartialVersion) && m_database.HasColumn(Schemes, LaterColumn);
}

// In a store that can be written, HaveSchemes has added them.
bool SchemeTables::HaveDetails()
{
    return !m_database.IsReadOnly() || m_database.HasColumn(Schemes, LaterColumn);
}

bool SchemeTables::IsTooNew()
{
    const qint32 version = HostTables::VersionOf(m_database, Schemes);
    return version > PartialVersion || (version > Version && version <= PartialVersion - Version);
}

void SchemeTables::StoreVersion()
{
    const std::vector<SchemeDetails> schemes = All();
    const bool isPartial = std::any_of(schemes.begin(), schemes.end(), [](const SchemeDetails& scheme) {
        return scheme.holds != WholeScheme;
    });
    const qint32 version = isPartial ? PartialVersion : Version;
    if (HostTables::VersionOf(m_database, Schemes) != version)
        HostTables::SetVersion(m_database, Schemes, version);
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

std::vector<SchemeDetails> SchemeTables::All()
{
    std::vector<SchemeDetails> all;
    const bool haveDetails = HaveDetails();
    const auto schemes = m_database.OpenQuery(QStringLiteral("SELECT * FROM LayerSchemes ORDER BY SchemeID"));
    for (; !schemes->AtEOF(); schemes->MoveNext())
        all.push_back(DetailsAt(*schemes, haveDetails));
    return all;
}

SchemeDetails SchemeTables::DetailsOf(qint32 schemeID)
{
    const bool haveDetails = HaveDetails();
    const auto scheme
        = m_database.OpenQuery(QStringLiteral("SELECT * FROM LayerSchemes WHERE SchemeID = ?1"), {schemeID});
    return scheme->AtEOF() ? SchemeDetails() : DetailsAt(*scheme, haveDetails);
}

SchemeDetails SchemeTables::Current()
{
    const bool haveDetails = HaveDetails();
    const auto scheme = m_database.OpenQuery(
        QStringLiteral("SELECT * FROM LayerSchemes ORDER BY IsCurrent DESC, SchemeID LIMIT 1"));
    return DetailsAt(*scheme, haveDetails);
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

QHash<qint32, qint32> SchemeTables::Replace(const std::vector<SchemeDetails>& schemes)
{
    const QHash<QString, qint32> present = IDs();
    for (const SchemeDetails& scheme : schemes) {
        if (!present.contains(scheme.name))
            m_database.Send(QStringLiteral("INSERT INTO LayerSchemes (Name) VALUES (?1)"), {scheme.name});
    }
    const QHash<QString, qint32> known = IDs();
    QHash<qint32, qint32> replaced;
    for (const SchemeDetails& scheme : schemes) {
        const qint32 schemeID = known.value(scheme.name);
        DropValues(schemeID);
        StoreHead(schemeID, scheme);
        replaced.insert(scheme.id, schemeID);
    }
    StoreVersion();
    return replaced;
}

QHash<QString, qint32> SchemeTables::IDs()
{
    QHash<QString, qint32> ids;
    for (const SchemeDetails& scheme : All())
        ids.insert(scheme.name, scheme.id);
    return ids;
}

void SchemeTables::StoreHead(qint32 schemeID, const SchemeHead& head)
{
    m_database.Send(
        QStringLiteral("UPDATE LayerSchemes SET Holds = ?2, SavedAt = ?3 WHERE SchemeID = ?1"),
        {schemeID, StoredParts(head.holds), StoredTime(head.saved)});
}

void SchemeTables::MakeCurrent(qint32 schemeID)
{
    m_database.Send(QStringLiteral("UPDATE LayerSchemes SET IsCurrent = (SchemeID = ?1)"), {schemeID});
}

void SchemeTables::SetHolds(qint32 schemeID, SchemeParts holds)
{
    m_database.Execute(
        QStringLiteral("UPDATE LayerSchemes SET Holds = ?2 WHERE SchemeID = ?1"),
        {schemeID, StoredParts(holds)});
    StoreVersion();
}

void SchemeTables::SetHead(qint32 schemeID, const SchemeHead& head)
{
    StoreHead(schemeID, head);
    StoreVersion();
}

void SchemeTables::SetSaved(qint32 schemeID, const QDateTime& saved)
{
    m_database.Execute(
        QStringLiteral("UPDATE LayerSchemes SET SavedAt = ?2 WHERE SchemeID = ?1"),
        {schemeID, StoredTime(saved)});
}

void SchemeTables::SetOrder(const QStringList& names)
{
    m_database.Send(QStringLiteral("UPDATE LayerSchemes SET Place = NULL"));
    qint32 place = 0;
    for (const QString& name : names)
        m_database.Send(
            QStringLiteral("UPDATE LayerSchemes SET Place = ?2 WHERE Name = ?1"), {name, place++});
}

void SchemeTables::SetAtOpening(qint32 schemeID)
{
    m_database.Execute(QStringLiteral("UPDATE LayerSchemes SET AtOpening = (SchemeID = ?1)"), {schemeID});
}

void SchemeTables::DropValues(qint32 schemeID)
{
    m_database.Send(QStringLiteral("DELETE FROM LayerSchemeValues WHERE SchemeID = ?1"), {schemeID});
}

void SchemeTables::Remove(qint32 schemeID)
{
    DropValues(schemeID);
    m_database.Execute(QStringLiteral("DELETE FROM LayerSchemes WHERE SchemeID = ?1"), {schemeID});
    StoreVersion();
}

} // namespace Orvane
