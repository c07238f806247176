// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeTables.h"

#include "hostkit/schemes/SchemeColumns.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

void SchemeTables::Create()
{
    m_database.Execute(QStringLiteral("CREATE TABLE IF NOT EXISTS LayerSchemes ("
                                      "SchemeID INTEGER PRIMARY KEY, Name TEXT NOT NULL UNIQUE,"
                                      " IsCurrent INTEGER NOT NULL DEFAULT 0)"));
    // Layer first: a deleted layer's values are found by it.
    m_database.Execute(
        QStringLiteral("CREATE TABLE IF NOT EXISTS LayerSchemeValues ("
                       "LayerID INTEGER NOT NULL REFERENCES Layers (LayerID) ON DELETE CASCADE,"
                       " SchemeID INTEGER NOT NULL, ")
        + SchemeColumns::Definitions() + QStringLiteral(", PRIMARY KEY (LayerID, SchemeID)) WITHOUT ROWID"));
}

bool SchemeTables::HaveSchemes()
{
    const auto table = m_database.OpenQuery(
        QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name = 'LayerSchemes'"));
    if (table->AtEOF())
        return false;
    return !m_database.OpenQuery(QStringLiteral("SELECT SchemeID FROM LayerSchemes LIMIT 1"))->AtEOF();
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
