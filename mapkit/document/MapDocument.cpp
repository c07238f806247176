// SPDX-License-Identifier: MIT
#include "mapkit/document/MapDocument.h"

#include "hostkit/common/LayerRow.h"
#include "hostkit/common/NextNumbers.h"
#include "hostkit/common/StoredScale.h"
#include "mapkit/document/EarlierBackdrop.h"
#include "mapkit/document/MapSettings.h"
#include "mapkit/document/MapTables.h"
#include "mapkit/looks/LayerPriority.h"
#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/copying/StoreCopy.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QFileInfo>

#include <numeric>
#include <utility>

namespace Orvane {

namespace {

LayerRow RowOf(const NewLayer& layer)
{
    LayerRow row;
    row.Set("Name", layer.name);
    row.Set("Visible", layer.visible);
    row.Set("Color", layer.values.color);
    row.Set("FillForeColor", layer.values.fillForeColor);
    row.Set("FillBackColor", layer.values.fillBackColor);
    row.Set("OutlineStyle", layer.values.outlineStyle);
    row.Set("FillStyle", layer.values.fillStyle);
    row.Set("LineThickness", layer.values.lineThickness);
    row.Set("MinVisScale", layer.minDenominator);
    row.Set("MaxVisScale", layer.maxDenominator > 0 ? layer.maxDenominator : StoredScale::NoLimit);
    row.Set("Priority", layer.priority);
    row.Set("Style", layer.values.style);
    return row;
}

// A number beyond 32 bits, which another program may have stored, is passed over.
QString NextGroupQuery(const char* column)
{
    return QStringLiteral("(SELECT coalesce(max(%1), 0) + 1 FROM LayerGroups WHERE %1 < 2147483647"
                          " AND CAST(%1 AS INTEGER) = %1)")
        .arg(QLatin1String(column));
}

SourcePaths PathsFor(const QString& map, const MapAccess& access)
{
    return StorePlace::IsFile(map) ? SourcePaths(map) : SourcePaths::InFolder(access.dataFolder);
}

StoreOptions OptionsFor(const MapAccess& access)
{
    StoreOptions options;
    options.login = access.login;
    return options;
}

// On a server, the tables that are there already have the right types; a file does not know all flags.
void StoreCopyAt(
    ILayerStore& store, const QString& place, IfExists ifExists, const StoreOptions& options,
    const StoreFiller& change)
{
    if (StorePlace::IsFile(place)) {
        store.CopyToFile(place, ifExists, change);
        return;
    }
    const auto fill = [&](std::unique_ptr<ILayerStore> copy) {
        MapTables::PrepareAll(*copy);
        CopyStore(store, *copy);
        change(std::move(copy));
    };
    LayerStores::Make(place, ifExists, fill, options);
}

} // namespace

NewLayer NewLayer::OfRaster()
{
    NewLayer layer;
    layer.kind = DataKind::Raster;
    layer.priority = LowestPriority;
    layer.values = ValuesWithoutInk();
    return layer;
}

std::unique_ptr<MapDocument> MapDocument::Untitled()
{
    return std::unique_ptr<MapDocument>(new MapDocument(LayerStores::CreateInMemory(), {}, {}));
}

void MapDocument::Make(const QString& path, IfExists ifExists, const Filler& fill, const MapAccess& access)
{
    const QString absolute = StorePlace::Canonical(path);
    const auto fillStore = [&](std::unique_ptr<ILayerStore> store) {
        if (!StorePlace::IsFile(absolute))
            MapTables::PrepareAll(*store);
        MapDocument document(std::move(store), absolute, access);
        if (fill)
            fill(document);
    };
    LayerStores::Make(absolute, ifExists, fillStore, OptionsFor(access));
}

std::unique_ptr<MapDocument> MapDocument::Create(const QString& path)
{
    Make(path, IfExists::Refuse);
    try {
        return Open(path);
    } catch (const RunTimeError&) {
        Remove(path);
        throw;
    }
}

std::unique_ptr<MapDocument> MapDocument::CreateOver(const QString& path)
{
    Make(path, IfExists::Replace);
    return Open(path);
}

std::unique_ptr<MapDocument> MapDocument::Open(const QString& path, const MapAccess& access)
{
    const QString place = StorePlace::Canonical(path);
    StoreOptions options = OptionsFor(access);
    if (StorePlace::IsFile(place)) // errors name a map on a server as it is called there
        options.shownPath = place;
    auto database = LayerStores::Open(place, OpenMode::ReadWrite, options);
    return std::unique_ptr<MapDocument>(new MapDocument(std::move(database), place, access));
}

std::unique_ptr<MapDocument>
MapDocument::OpenCopy(const QString& copy, const QString& original, const MapAccess& access)
{
    StoreOptions options;
    const QString place = StorePlace::Canonical(original);
    options.shownPath = place;
    auto database = LayerStores::Open(StorePlace::Canonical(copy), OpenMode::ReadWrite, options);
    return std::unique_ptr<MapDocument>(new MapDocument(std::move(database), place, access));
}

MapDocument::MapDocument(std::unique_ptr<ILayerStore> database, const QString& path, const MapAccess& access)
    : m_database(std::move(database)), m_path(path), m_tables(access.tables),
      m_paths(PathsFor(m_path, access)), m_sources(*m_database, m_paths, m_tables), m_renderings(*m_database)
{
    m_sources.Create();
    m_renderings.Create();
    MapSettings::Prepare(*m_database);
    EarlierBackdrop::MakeLayer(*this);
}

MapDocument::~MapDocument() = default;

void MapDocument::Remove(const QString& path)
{
    LayerStores::Remove(path);
}

void MapDocument::Copy(
    const QString& from, const QString& to, IfExists ifExists, const MapAccess& accessFrom,
    const MapAccess& accessTo, const StoreWatcher& watcher)
{
    const QString place = StorePlace::Canonical(from);
    StoreOptions options = OptionsFor(accessFrom);
    options.answerTimeout = LayerStores::WholeMapTimeout;
    const auto store = LayerStores::Open(place, OpenMode::ReadOnly, options);
    store->SetWatcher(watcher);
    CopyTo(*store, place, PathsFor(place, accessFrom), {StorePlace::Canonical(to), ifExists, accessTo});
}

void MapDocument::SaveCopy(const QString& path, const MapAccess& access, IfExists ifExists) const
{
    CopyTo(*m_database, m_path, m_paths, {StorePlace::Canonical(path), ifExists, access});
}

// What is in an older map is found from its own place, and then stored as the copy finds it.
void MapDocument::CopyTo(
    ILayerStore& store, const QString& from, const SourcePaths& paths, const Target& target)
{
    const auto relocate = [&](std::unique_ptr<ILayerStore> stored) {
        const MapDocument copy(std::move(stored), from, {});
        Transaction transaction(copy.Database());
        SourceTable(copy.Database(), PathsFor(target.place, target.access)).Relocate(paths);
        transaction.Commit();
    };
    StoreCopyAt(store, target.place, target.ifExists, OptionsFor(target.access), relocate);
}

QString MapDocument::FilePath() const
{
    return StorePlace::IsFile(m_path) ? m_path : QString();
}

QString MapDocument::Name() const
{
    return StorePlace::NameOf(m_path);
}

bool MapDocument::IsAt(const QString& path) const
{
    if (!StorePlace::IsFile(path) || !StorePlace::IsFile(m_path))
        return path == m_path;
    const QString there = QFileInfo(path).canonicalFilePath(); // empty if there is no file
    return !there.isEmpty() && there == QFileInfo(m_path).canonicalFilePath();
}

bool MapDocument::IsReadOnly() const
{
    return m_database->IsReadOnly();
}

QString MapDocument::System() const
{
    return MapSettings::Read(*m_database, QStringLiteral("System"));
}

void MapDocument::SetSystem(const QString& system)
{
    MapSettings::Write(*m_database, QStringLiteral("System"), system);
}

QColor MapDocument::Background() const
{
    const QColor stored(MapSettings::Read(*m_database, QStringLiteral("Background")));
    return stored.isValid() ? QColor::fromRgb(stored.rgb()) : QColor(Qt::white);
}

void MapDocument::SetBackground(const QColor& colour)
{
    MapSettings::Write(*m_database, QStringLiteral("Background"), colour.name());
}

qint32 MapDocument::AddLayer(const NewLayer& layer)
{
    return AddLayers({layer}).front();
}

std::vector<qint32> MapDocument::AddLayers(const std::vector<NewLayer>& layers)
{
    const auto count = qsizetype(layers.size());
    return StoreWithNextNumbers(
        [&] { return LayerRow::FreeIDs(*m_database, count); },
        [&](const std::vector<qint32>& layerIDs) {
            StoreLayers(layers, layerIDs);
            return layerIDs;
        });
}

void MapDocument::StoreLayers(const std::vector<NewLayer>& layers, const std::vector<qint32>& layerIDs)
{
    Transaction transaction(*m_database);
    const auto count = qsizetype(layers.size());
    const std::vector<qint16> codes = LayerRow::FreeCodes(*m_database, count);
    for (size_t i = 0; i < layers.size(); ++i) {
        const NewLayer& layer = layers[i];
        LayerRow row = RowOf(layer);
        row.Set("Code", codes[i]);
        row.StoreAs(layerIDs[i], *m_database);
        SetSource(
            {layerIDs[i], layer.path, layer.ogrLayer, layer.filter, layer.system, layer.choice, layer.kind});
        m_database->AskWatcher(double(i + 1) / double(count));
    }
    transaction.Commit();
}

qint32 MapDocument::AddGroup(const QString& name, bool expanded)
{
    return AddGroups({name}, expanded).front();
}

std::vector<qint32> MapDocument::AddGroups(const QStringList& names, bool expanded)
{
    const auto next = [&] {
        const auto row
            = m_database->OpenQuery(QStringLiteral("SELECT %1 AS NextID, %2 AS NextOrdering")
                                        .arg(NextGroupQuery("ID"), NextGroupQuery("GroupOrdering")));
        return std::pair(ToInt32(row->Field("NextID")), ToInt32(row->Field("NextOrdering")));
    };
    return StoreWithNextNumbers(next, [&](const std::pair<qint32, qint32>& first) {
        StoreGroups(names, expanded, first.first, first.second);
        std::vector<qint32> groupIDs(size_t(names.size()));
        std::iota(groupIDs.begin(), groupIDs.end(), first.first);
        return groupIDs;
    });
}

void MapDocument::StoreGroups(const QStringList& names, bool expanded, qint32 firstID, qint32 firstOrdering)
{
    Transaction transaction(*m_database);
    for (qsizetype i = 0; i < names.size(); ++i) {
        m_database->Send(
            QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering, Expanded)"
                           " VALUES (?1, ?2, ?3, ?4)"),
            {ToInt32(double(firstID) + double(i)), names[i], ToInt32(double(firstOrdering) + double(i)),
             expanded});
    }
    transaction.Commit();
}

void MapDocument::AddMember(qint32 groupID, qint32 layerID)
{
    m_database->Send(
        QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) SELECT ?1, ?2, count(*)"
                       " FROM LayerGroupMembers WHERE GroupID = ?1"),
        {groupID, layerID});
}

std::vector<LayerSource> MapDocument::Sources() const
{
    return m_sources.All();
}

std::vector<LayerSource> MapDocument::SourcesOf(const std::vector<qint32>& layerIDs) const
{
    return m_sources.Of(layerIDs);
}

std::optional<LayerSource> MapDocument::SourceOf(qint32 layerID) const
{
    return m_sources.Of(layerID);
}

void MapDocument::SetSource(const LayerSource& source)
{
    m_sources.Set(source);
}

bool MapDocument::HasLayers() const
{
    return !m_database->OpenRecordset(QStringLiteral("SELECT LayerID FROM Layers LIMIT 1"))->AtEOF();
}

} // namespace Orvane
