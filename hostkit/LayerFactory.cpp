// SPDX-License-Identifier: MIT
#include "hostkit/LayerFactory.h"

#include "hostkit/LayerDeletion.h"
#include "hostkit/common/FillPatterns.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/common/StoredScale.h"
#include "hostkit/schemes/SchemeTables.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <limits>

namespace Orvane {

namespace {

constexpr qint32 Black = 0;
constexpr qint16 ThinnestLine = 0;

bool HasRow(ILayerDatabase& database, const QString& query)
{
    return !database.OpenRecordset(query)->AtEOF();
}

QStringList NamesOf(ILayerStore& database, const QString& query, qint32 layerID)
{
    QStringList names;
    const auto rows = database.OpenQuery(query, {layerID});
    for (; !rows->AtEOF(); rows->MoveNext())
        names << ToTextOrNone(rows->Field("Name"));
    return names;
}

} // namespace

qint32 LayerFactory::Create()
{
    const QString name = UnusedName();
    Transaction transaction(m_database);
    const qint32 layerID = NextLayerID();
    Insert(layerID, name);
    transaction.Commit();
    m_names.Set(layerID, name);
    return layerID;
}

void LayerFactory::Delete(qint32 layerID)
{
    Transaction transaction(m_database);
    m_database.Execute(QStringLiteral("DELETE FROM LayerGroupMembers WHERE LayerID = ?1"), {layerID});
    // The layer's values in schemes refer to this row and go with it.
    m_database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = ?1"), {layerID});
    transaction.Commit();
    m_names.Remove(layerID);
}

LayerDeletion LayerFactory::WhatGoes(qint32 layerID)
{
    LayerDeletion deletion;
    deletion.layer = m_names.Name(layerID);
    deletion.groups = NamesOf(
        m_database,
        QStringLiteral("SELECT Name FROM LayerGroups JOIN LayerGroupMembers ON GroupID = ID"
                       " WHERE LayerID = ?1 ORDER BY GroupOrdering, ID"),
        layerID);
    if (SchemeTables(m_database).HaveSchemes()) {
        deletion.schemes = NamesOf(
            m_database,
            QStringLiteral("SELECT Name FROM LayerSchemes JOIN LayerSchemeValues USING (SchemeID)"
                           " WHERE LayerID = ?1 ORDER BY SchemeID"),
            layerID);
    }
    return deletion;
}

bool LayerFactory::CanDelete(qint32 layerID)
{
    return HasRow(
        m_database,
        QStringLiteral("SELECT LayerID FROM Layers WHERE LayerID = %1 AND COALESCE(SystemLayer, 0) = 0")
            .arg(layerID));
}

bool LayerFactory::IsCodeAssigned(qint16 code)
{
    return HasRow(m_database, QStringLiteral("SELECT LayerID FROM Layers WHERE Code = %1 LIMIT 1").arg(code));
}

qint32 LayerFactory::NextLayerID()
{
    const auto highest
        = m_database.OpenRecordset(QStringLiteral("SELECT COALESCE(MAX(LayerID), 0) AS Highest FROM Layers"));
    return ToInt32(ToDouble(highest->Field("Highest")) + 1);
}

qint16 LayerFactory::LowestFreeCode()
{
    const auto taken = m_database.OpenRecordset(
        QStringLiteral("SELECT DISTINCT Code FROM Layers WHERE Code >= 0 ORDER BY Code"));
    qint32 code = 0;
    for (; !taken->AtEOF() && ToDouble(taken->Field("Code")) <= code; taken->MoveNext()) {
        if (ToDouble(taken->Field("Code")) == code)
            ++code;
    }
    return code <= std::numeric_limits<qint16>::max() ? qint16(code) : NoCode;
}

QString LayerFactory::UnusedName()
{
    const QSet<QString> taken = m_names.All();
    const QString first = tr("New layer");
    QString name = first;
    for (int number = 2; taken.contains(name); ++number)
        name = tr("%1 %2", "a new layer's name and its number").arg(first).arg(number);
    return name;
}

void LayerFactory::Insert(qint32 layerID, const QString& name)
{
    m_database.Execute(
        QStringLiteral("INSERT INTO Layers (LayerID, Name, Code, Visible, Selectable, locked, Hitable, "
                       "SnapRequired, Enquirable,"
                       " Color, FillForeColor, FillBackColor, OutlineStyle, FillStyle, LineThickness, "
                       "MinVisScale, MaxVisScale,"
                       " Priority, Style, OverrideMode, SystemLayer, Pseudo)"
                       " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16, ?17, "
                       "?18, 0, 0, 0, 0)"),
        {layerID, name, LowestFreeCode(), true, true, false, true, false, true, Black, Black,
         TransparentColour, qint16(0), HollowFill, ThinnestLine, StoredScale::NoMinimum,
         qint32(StoredScale::NoMaximum), DefaultPriority});
}

} // namespace Orvane
