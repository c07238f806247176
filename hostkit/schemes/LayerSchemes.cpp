// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerSchemes.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/common/NaturalOrder.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane {

namespace {

[[noreturn]] void Raise(HostError number, const QString& description)
{
    throw RunTimeError(int(number), description, QStringLiteral("LayerSchemes"));
}

void PutInUsersOrder(std::vector<SchemeDetails>& schemes)
{
    const QCollator order = NaturalOrder();
    std::stable_sort(schemes.begin(), schemes.end(), [&](const SchemeDetails& a, const SchemeDetails& b) {
        if (a.place.has_value() != b.place.has_value())
            return a.place.has_value();
        return a.place == b.place ? order(a.name, b.name) : a.place < b.place;
    });
}

// Joins the layers to their values in scheme ?1 if the values differ.
QString DifferingLayers(SchemeParts parts)
{
    return QStringLiteral(
               " LayerSchemeValues.SchemeID = ?1 AND LayerSchemeValues.LayerID = Layers.LayerID AND ")
        + SchemeColumns::Difference(parts);
}

QString DifferingLayersQuery(SchemeParts parts)
{
    return QStringLiteral("SELECT Layers.LayerID FROM Layers, LayerSchemeValues WHERE")
        + DifferingLayers(parts);
}

// The layers for which scheme ?1 has different values or no values.
QString DifferingOrUnknownQuery(SchemeParts parts, const char* wanted = "Layers.LayerID")
{
    return QStringLiteral("SELECT ") + QLatin1String(wanted)
        + QStringLiteral(" FROM Layers LEFT JOIN LayerSchemeValues"
                         " ON LayerSchemeValues.SchemeID = ?1"
                         " AND LayerSchemeValues.LayerID = Layers.LayerID"
                         " WHERE (LayerSchemeValues.LayerID IS NULL OR ")
        + SchemeColumns::Difference(parts) + u')';
}

QSet<qint32> LayersOf(ILayerStore& database, const QString& query, const std::vector<Value>& values)
{
    QSet<qint32> layerIDs;
    const auto layers = database.OpenQuery(query, values);
    for (; !layers->AtEOF(); layers->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(layers->Field("LayerID")))
            layerIDs.insert(*layerID);
    }
    return layerIDs;
}

} // namespace

QStringList LayerSchemes::Names()
{
    QStringList names;
    for (const SchemeDetails& scheme : All())
        names << scheme.name;
    return names;
}

std::vector<SchemeDetails> LayerSchemes::All()
{
    if (!IsReadable()) {
        SchemeDetails standard;
        standard.name = tr("Standard");
        standard.isCurrent = true;
        return {standard};
    }
    std::vector<SchemeDetails> schemes = m_tables.All();
    PutInUsersOrder(schemes);
    return schemes;
}

QString LayerSchemes::Current()
{
    return IsReadable() ? m_tables.CurrentName() : tr("Standard");
}

QString LayerSchemes::CurrentName()
{
    return m_tables.HaveSchemes() ? m_tables.CurrentName() : tr("Standard");
}

void LayerSchemes::Create(const QString& name)
{
    Transaction transaction(m_database);
    MakeStandard();
    RequireUnused(name);
    const qint32 schemeID = m_tables.Insert(name);
    StoreValues(schemeID);
    m_tables.MakeCurrent(schemeID);
    transaction.Commit();
}

void LayerSchemes::Add(const QString& name, SchemeParts holds)
{
    Transaction transaction(m_database);
    MakeStandard();
    RequireUnused(name);
    const qint32 schemeID = m_tables.Insert(name);
    m_tables.SetHolds(schemeID, holds);
    StoreValues(schemeID);
    transaction.Commit();
}

void LayerSchemes::Save(const QString& name)
{
    Transaction transaction(m_database);
    StoreValues(IDOf(name));
    transaction.Commit();
}

QSet<qint32> LayerSchemes::Load(const QString& name)
{
    Transaction transaction(m_database);
    const qint32 schemeID = IDOf(name);
    const SchemeParts holds = m_tables.HoldsOf(schemeID);
    QSet<qint32> changed = LayersOf(m_database, DifferingLayersQuery(holds), {schemeID});
    m_database.Send(
        QStringLiteral("UPDATE Layers SET ") + SchemeColumns::Assignments(holds)
            + QStringLiteral(" FROM LayerSchemeValues WHERE") + DifferingLayers(holds),
        {schemeID});
    m_tables.MakeCurrent(schemeID);
    transaction.Commit();
    return changed;
}

bool LayerSchemes::WouldChange(const QString& name)
{
    const qint32 schemeID = IDOf(name);
    const QString query = DifferingLayersQuery(m_tables.HoldsOf(schemeID)) + QStringLiteral(" LIMIT 1");
    return !m_database.OpenQuery(query, {schemeID})->AtEOF();
}

void LayerSchemes::Delete(const QString& name)
{
    Transaction transaction(m_database);
    const qint32 schemeID = IDOf(name);
    if (m_tables.Names().size() == 1)
        Raise(HostError::LastScheme, tr("The last layer scheme cannot be deleted."));
    const bool wasCurrent = m_tables.CurrentName() == name;
    m_tables.Remove(schemeID);
    if (wasCurrent)
        m_tables.MakeCurrent(m_tables.IDOf(Names().constFirst()));
    transaction.Commit();
}

void LayerSchemes::Rename(const QString& name, const QString& newName)
{
    Transaction transaction(m_database);
    const qint32 schemeID = IDOf(name);
    RequireUnused(newName);
    m_database.Execute(
        QStringLiteral("UPDATE LayerSchemes SET Name = ?2 WHERE SchemeID = ?1"), {schemeID, newName});
    transaction.Commit();
}

void LayerSchemes::Duplicate(const QString& name, const QString& newName)
{
    Transaction transaction(m_database);
    const qint32 schemeID = IDOf(name);
    RequireUnused(newName);
    const qint32 newID = m_tables.Insert(newName);
    m_tables.SetHead(newID, m_tables.DetailsOf(schemeID));
    m_database.Execute(
        QStringLiteral("INSERT INTO LayerSchemeValues (SchemeID, LayerID, ") + SchemeColumns::List()
            + QStringLiteral(") SELECT ?2, LayerID, ") + SchemeColumns::List()
            + QStringLiteral(" FROM LayerSchemeValues WHERE SchemeID = ?1"),
        {schemeID, newID});
    transaction.Commit();
}

QSet<qint32> LayerSchemes::LayersThatDiffer()
{
    if (!m_tables.HaveSchemes())
        return {};
    const SchemeDetails current = m_tables.Current();
    return LayersOf(m_database, DifferingOrUnknownQuery(current.holds), {current.id});
}

QSet<qint32> LayerSchemes::LayersThatDiffer(const QSet<qint32>& layerIDs)
{
    QSet<qint32> differing;
    if (!m_tables.HaveSchemes())
        return differing;
    const SchemeDetails current = m_tables.Current();
    const QString query = DifferingOrUnknownQuery(current.holds) + QStringLiteral(" AND Layers.LayerID IN ");
    KeyLists::ForEachBlock(
        {layerIDs.begin(), layerIDs.end()}, {current.id},
        [&](const QString& list, const std::vector<Value>& values) {
            differing.unite(LayersOf(m_database, query + list, values));
        });
    return differing;
}

qsizetype LayerSchemes::CountThatDiffer(const QString& name)
{
    if (m_database.IsReadOnly() && !m_tables.HaveSchemes())
        return 0; // "Standard" is only what the layers are
    const qint32 schemeID = IDOf(name);
    const auto count = m_database.OpenQuery(
        DifferingOrUnknownQuery(m_tables.HoldsOf(schemeID), "COUNT(*) AS Differing"), {schemeID});
    return qsizetype(ToDouble(count->Field("Differing")));
}

void LayerSchemes::SetHolds(const QString& name, SchemeParts holds)
{
    Transaction transaction(m_database);
    const qint32 schemeID = IDOf(name);
    const SchemeParts held = m_tables.HoldsOf(schemeID);
    m_tables.SetHolds(schemeID, holds);
    DropValues(schemeID, held & ~holds);
    FillValues(schemeID, holds & ~held);
    transaction.Commit();
}

void LayerSchemes::SetOrder(const QStringList& names)
{
    Transaction transaction(m_database);
    MakeStandard();
    m_tables.SetOrder(names);
    transaction.Commit();
}

QString LayerSchemes::AtOpening()
{
    if (!m_tables.HaveSchemes())
        return {};
    const std::vector<SchemeDetails> schemes = m_tables.All();
    const auto found = std::find_if(
        schemes.begin(), schemes.end(), [](const SchemeDetails& scheme) { return scheme.isAtOpening; });
    return found == schemes.end() ? QString() : found->name;
}

void LayerSchemes::SetAtOpening(const QString& name)
{
    Transaction transaction(m_database);
    MakeStandard();
    m_tables.SetAtOpening(name.isEmpty() ? SchemeTables::NoScheme : IDOf(name));
    transaction.Commit();
}

bool LayerSchemes::IsReadable()
{
    if (m_tables.HaveSchemes())
        return true;
    if (m_database.IsReadOnly())
        return false;
    Transaction transaction(m_database);
    MakeStandard();
    transaction.Commit();
    return true;
}

void LayerSchemes::MakeStandard()
{
    if (m_tables.HaveSchemes())
        return;
    m_tables.Create();
    const qint32 schemeID = m_tables.Insert(tr("Standard"));
    StoreValues(schemeID);
    m_tables.MakeCurrent(schemeID);
}

void LayerSchemes::RequireUnused(const QString& name)
{
    if (m_tables.IDOf(name) != SchemeTables::NoScheme)
        Raise(HostError::DuplicateScheme, tr("There is a layer scheme named \"%1\" already.").arg(name));
}

qint32 LayerSchemes::IDOf(const QString& name)
{
    MakeStandard();
    const qint32 schemeID = m_tables.IDOf(name);
    if (schemeID == SchemeTables::NoScheme)
        Raise(HostError::UnknownScheme, tr("There is no layer scheme named \"%1\".").arg(name));
    return schemeID;
}

void LayerSchemes::StoreValues(qint32 schemeID)
{
    const QString columns = SchemeColumns::List(m_tables.HoldsOf(schemeID));
    m_tables.DropValues(schemeID);
    m_tables.SetSaved(schemeID, QDateTime::currentDateTimeUtc());
    m_database.Execute(
        QStringLiteral("INSERT INTO LayerSchemeValues (SchemeID, LayerID, ") + columns
            + QStringLiteral(") SELECT ?1, LayerID, ") + columns + QStringLiteral(" FROM Layers"),
        {schemeID});
}

// They count as saved now, also those that the scheme held before: nobody could tell them apart later.
void LayerSchemes::FillValues(qint32 schemeID, SchemeParts parts)
{
    if (!parts)
        return;
    m_tables.SetSaved(schemeID, QDateTime::currentDateTimeUtc());
    m_database.Execute(
        QStringLiteral("UPDATE LayerSchemeValues SET ") + SchemeColumns::Present(parts)
            + QStringLiteral(" FROM Layers WHERE SchemeID = ?1"
                             " AND Layers.LayerID = LayerSchemeValues.LayerID"),
        {schemeID});
}

void LayerSchemes::DropValues(qint32 schemeID, SchemeParts parts)
{
    if (!parts)
        return;
    m_database.Execute(
        QStringLiteral("UPDATE LayerSchemeValues SET ") + SchemeColumns::Unset(parts)
            + QStringLiteral(" WHERE SchemeID = ?1"),
        {schemeID});
}

} // namespace Orvane
