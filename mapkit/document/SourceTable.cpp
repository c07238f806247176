// SPDX-License-Identifier: MIT
#include "mapkit/document/SourceTable.h"

#include "store/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr auto SourcesDefinition
    = "CREATE TABLE IF NOT EXISTS LayerSources ("
      " LayerID INTEGER PRIMARY KEY REFERENCES Layers (LayerID) ON DELETE CASCADE,"
      " Path TEXT NOT NULL, OgrLayer TEXT NOT NULL, Filter TEXT NOT NULL DEFAULT '')";

} // namespace

void SourceTable::Create()
{
    m_database.Execute(QLatin1String(SourcesDefinition));
    if (!HasColumn("RelativePath"))
        m_database.Execute(QStringLiteral("ALTER TABLE LayerSources ADD COLUMN RelativePath TEXT"));
}

std::vector<LayerSource> SourceTable::All() const
{
    if (!HasColumn("Path"))
        return {};
    const bool older = !HasColumn("RelativePath");
    const auto rows
        = m_database.OpenQuery(QStringLiteral("SELECT LayerID, Path, OgrLayer, Filter, %1 AS RelativePath"
                                              " FROM LayerSources ORDER BY LayerID")
                                   .arg(QLatin1String(older ? "NULL" : "RelativePath")));
    std::vector<LayerSource> sources;
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const SourcePaths::Place place{
            ToTextOrNone(rows->Field("Path")), ToTextOrNone(rows->Field("RelativePath"))};
        sources.push_back(
            {ToInt32(rows->Field("LayerID")), m_paths.Find(place), ToTextOrNone(rows->Field("OgrLayer")),
             ToTextOrNone(rows->Field("Filter"))});
    }
    return sources;
}

void SourceTable::Set(const LayerSource& source)
{
    const SourcePaths::Place place = m_paths.Store(source.path);
    const auto notNull = [](const QString& text) { return text.isNull() ? QStringLiteral("") : text; };
    m_database.Execute(
        QStringLiteral("INSERT OR REPLACE INTO LayerSources (LayerID, Path, OgrLayer, Filter, RelativePath)"
                       " VALUES (?1, ?2, ?3, ?4, ?5)"),
        {source.layerID, notNull(place.path), notNull(source.ogrLayer), notNull(source.filter),
         notNull(place.relative)});
}

bool SourceTable::HasColumn(const char* column) const
{
    const auto found = m_database.OpenQuery(
        QStringLiteral("SELECT name FROM pragma_table_info('LayerSources') WHERE name = ?1"),
        {QString::fromLatin1(column)});
    return !found->AtEOF();
}

} // namespace Orvane
