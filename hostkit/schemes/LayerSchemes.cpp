// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerSchemes.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QCollator>

#include <algorithm>

namespace Orvane {

namespace {

[[noreturn]] void Raise(HostError number, const QString& description)
{
    throw RunTimeError(int(number), description, QStringLiteral("LayerSchemes"));
}

QStringList InUsersOrder(QStringList names)
{
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    std::stable_sort(names.begin(), names.end(), collator);
    return names;
}

// Joins the layers to their values in scheme ?1 if the values differ.
QString DifferingLayers()
{
    return QStringLiteral(
               " LayerSchemeValues.SchemeID = ?1 AND LayerSchemeValues.LayerID = Layers.LayerID AND ")
        + SchemeColumns::Difference();
}

QString DifferingLayersQuery()
{
    return QStringLiteral("SELECT Layers.LayerID FROM Layers, LayerSchemeValues WHERE") + DifferingLayers();
}

// The layers for which scheme ?1 has different values or no values.
QString DifferingOrUnknownQuery(const char* wanted = "Layers.LayerID")
{
    return QStringLiteral("SELECT ") + QLatin1String(wanted)
        + QStringLiteral(" FROM Layers LEFT JOIN LayerSchemeValues"
                         " ON LayerSchemeValues.SchemeID = ?1"
                         " AND LayerSchemeValues.LayerID = Layers.LayerID"
                         " WHERE (LayerSchemeValues.LayerID IS NULL OR ")
        + SchemeColumns::Difference() + u')';
}

QSet<qint32> LayersOf(ILayerStore& database, const QString& query, qint32 schemeID)
{
    QSet<qint32> layerIDs;
    const auto layers = database.OpenQuery(query, {schemeID});
    for (; !layers->AtEOF(); layers->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(layers->Field("LayerID")))
            layerIDs.insert(*layerID);
    }
    return layerIDs;
}

} // namespace

QStringList LayerSchemes::Names()
{
    return IsReadable() ? InUsersOrder(m_tables.Names()) : QStringList{tr("Standard")};
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
    QSet<qint32> changed = LayersOf(m_database, DifferingLayersQuery(), schemeID);
    m_database.Execute(
        QStringLiteral("UPDATE Layers SET ") + SchemeColumns::Assignments()
            + QStringLiteral(" FROM LayerSchemeValues WHERE") + DifferingLayers(),
        {schemeID});
    m_tables.MakeCurrent(schemeID);
    transaction.Commit();
    return changed;
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
    m_database.Execute(
        QStringLiteral("INSERT INTO LayerSchemeValues (SchemeID, LayerID, ") + SchemeColumns::List()
            + QStringLiteral(") SELECT ?2, LayerID, ") + SchemeColumns::List()
            + QStringLiteral(" FROM LayerSchemeValues WHERE SchemeID = ?1"),
        {schemeID, m_tables.Insert(newName)});
    transaction.Commit();
}

QSet<qint32> LayerSchemes::LayersThatDiffer()
{
    if (!m_tables.HaveSchemes())
        return {};
    return LayersOf(m_database, DifferingOrUnknownQuery(), CurrentID());
}

QSet<qint32> LayerSchemes::LayersThatDiffer(const QSet<qint32>& layerIDs)
{
    QSet<qint32> differing;
    if (!m_tables.HaveSchemes())
        return differing;
    const qint32 schemeID = CurrentID();
    const QString query = DifferingOrUnknownQuery() + QStringLiteral(" AND Layers.LayerID = ?2");
    for (const qint32 layerID : layerIDs) {
        if (!m_database.OpenQuery(query, {schemeID, layerID})->AtEOF())
            differing.insert(layerID);
    }
    return differing;
}

qsizetype LayerSchemes::CountThatDiffer(const QString& name)
{
    if (m_database.IsReadOnly() && !m_tables.HaveSchemes())
        return 0; // "Standard" is only what the layers are
    const auto count = m_database.OpenQuery(DifferingOrUnknownQuery("COUNT(*) AS Differing"), {IDOf(name)});
    return qsizetype(ToDouble(count->Field("Differing")));
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

qint32 LayerSchemes::CurrentID()
{
    return m_tables.IDOf(m_tables.CurrentName());
}

void LayerSchemes::StoreValues(qint32 schemeID)
{
    m_tables.DropValues(schemeID);
    m_database.Execute(
        QStringLiteral("INSERT INTO LayerSchemeValues (SchemeID, LayerID, ") + SchemeColumns::List()
            + QStringLiteral(") SELECT ?1, LayerID, ") + SchemeColumns::List()
            + QStringLiteral(" FROM Layers"),
        {schemeID});
}

} // namespace Orvane
