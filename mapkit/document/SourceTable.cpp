// SPDX-License-Identifier: MIT
#include "mapkit/document/SourceTable.h"

#include "mapkit/data/ServerTables.h"
#include "mapkit/document/NotNull.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

const QString SourcesName = QStringLiteral("LayerSources");
const QString RelativePath = QStringLiteral("RelativePath");
const QString System = QStringLiteral("System");
const QString Geometry = QStringLiteral("Geometry");
const QString Kind = QStringLiteral("Kind");

StoreTable SourcesTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString layerID = QStringLiteral("LayerID");
    return {
        SourcesName,
        {{layerID, StoreType::Whole, Nulls::Allowed, {}, QStringLiteral("Layers"), layerID},
         {QStringLiteral("Path"), StoreType::Text, Nulls::Refused},
         {QStringLiteral("OgrLayer"), StoreType::Text, Nulls::Refused},
         {QStringLiteral("Filter"), StoreType::Text, Nulls::Refused, QStringLiteral("''")},
         {RelativePath},
         {System},
         {Geometry},
         {Kind}},
        {layerID}};
}

} // namespace

void SourceTable::Create()
{
    m_database.PrepareTable(SourcesTable());
}

std::vector<LayerSource> SourceTable::All() const
{
    return Where(QStringLiteral("TRUE"), {});
}

std::vector<LayerSource> SourceTable::Of(const std::vector<qint32>& layerIDs) const
{
    std::vector<LayerSource> sources;
    KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        const std::vector<LayerSource> found = Where(QStringLiteral("LayerID IN ") + list, values);
        sources.insert(sources.end(), found.begin(), found.end());
    });
    return sources;
}

std::optional<LayerSource> SourceTable::Of(qint32 layerID) const
{
    const std::vector<LayerSource> found = Of(std::vector{layerID});
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<LayerSource> SourceTable::Where(const QString& condition, const std::vector<Value>& values) const
{
    if (!m_database.HasTable(SourcesName))
        return {};
    // A file that is only read may lack the later columns.
    const auto valueOf = [this](const QString& column) {
        return m_database.HasColumn(SourcesName, column) ? column : QStringLiteral("NULL AS ") + column;
    };
    const auto rows = m_database.OpenQuery(
        QStringLiteral("SELECT LayerID, Path, OgrLayer, Filter, %1, %2, %3, %4"
                       " FROM LayerSources WHERE %5 ORDER BY LayerID")
            .arg(valueOf(RelativePath), valueOf(System), valueOf(Geometry), valueOf(Kind), condition),
        values);
    std::vector<LayerSource> sources;
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"));
        if (!layerID) // belongs to no layer that can be shown
            continue;
        const SourcePaths::Place place{
            ToTextOrNone(rows->Field("Path")), ToTextOrNone(rows->Field("RelativePath"))};
        sources.push_back(
            {*layerID, m_paths.Find(place), ToTextOrNone(rows->Field("OgrLayer")),
             ToTextOrNone(rows->Field("Filter")), ToTextOrNone(rows->Field("System")),
             GeometryChoice::FromText(ToTextOrNone(rows->Field("Geometry"))),
             KindInText(ToTextOrNone(rows->Field("Kind")))});
        if (IsServerTable(place.path))
            sources.back().server = m_server;
    }
    return sources;
}

void SourceTable::Set(const LayerSource& source)
{
    const SourcePaths::Place place = m_paths.Store(source.path);
    m_database.Send(
        QStringLiteral("INSERT INTO LayerSources"
                       " (LayerID, Path, OgrLayer, Filter, RelativePath, System, Geometry, Kind)"
                       " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8) ON CONFLICT (LayerID) DO UPDATE SET"
                       " Path = excluded.Path, OgrLayer = excluded.OgrLayer, Filter = excluded.Filter,"
                       " RelativePath = excluded.RelativePath, System = excluded.System,"
                       " Geometry = excluded.Geometry, Kind = excluded.Kind"),
        {source.layerID, NotNull(place.path), NotNull(source.ogrLayer), NotNull(source.filter),
         NotNull(place.relative), NotNull(source.system), NotNull(source.choice.ToText()),
         NotNull(TextOfKind(source.kind))});
}

void SourceTable::SetPlace(qint32 layerID, const SourcePaths::Place& place)
{
    m_database.Send(
        QStringLiteral("UPDATE LayerSources SET Path = ?2, RelativePath = ?3 WHERE LayerID = ?1"),
        {layerID, place.path, place.relative});
}

void SourceTable::Relocate(const SourcePaths& former)
{
    const auto move
        = QStringLiteral("UPDATE LayerSources SET Path = ?1, RelativePath = ?2 WHERE LayerID IN ");
    for (const auto& [stored, layerIDs] : LayersByPlace()) {
        const SourcePaths::Place old{stored.first, stored.second};
        const SourcePaths::Place place = m_paths.StoreFrom(former, old);
        if (place.path == old.path && place.relative == old.relative)
            continue;
        const std::vector<Value> values{NotNull(place.path), NotNull(place.relative)};
        KeyLists::ForEachBlock(layerIDs, values, [&](const QString& list, const std::vector<Value>& all) {
            m_database.Send(move + list, all);
        });
    }
}

SourceTable::LayersOfPlaces SourceTable::LayersByPlace() const
{
    const auto rows
        = m_database.OpenQuery(QStringLiteral("SELECT LayerID, Path, RelativePath FROM LayerSources"));
    LayersOfPlaces layers;
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"))) {
            const QString path = ToTextOrNone(rows->Field("Path"));
            layers[{path, ToTextOrNone(rows->Field("RelativePath"))}].push_back(*layerID);
        }
    }
    return layers;
}

std::map<qint32, QString> SourceTable::ChosenReadings() const
{
    const auto rows = m_database.OpenQuery(QStringLiteral(
        "SELECT LayerID, System, Geometry FROM LayerSources WHERE System <> '' OR Geometry <> ''"));
    std::map<qint32, QString> readings;
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(rows->Field("LayerID")))
            readings.emplace(
                *layerID,
                ToTextOrNone(rows->Field("System")) + QLatin1Char('\n')
                    + ToTextOrNone(rows->Field("Geometry")));
    }
    return readings;
}

} // namespace Orvane
