// SPDX-License-Identifier: MIT
#include "mapkit/document/MapDocument.h"

#include "hostkit/common/LayerRow.h"
#include "hostkit/common/StoredScale.h"
#include "mapkit/document/EarlierBackdrop.h"
#include "mapkit/document/MapSettings.h"
#include "mapkit/looks/LayerPriority.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QFileInfo>

namespace Orvane {

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
    return std::unique_ptr<MapDocument>(new MapDocument(LayerStores::CreateInMemory(), {}));
}

void MapDocument::Make(const QString& path, IfExists ifExists, const Filler& fill)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    LayerStores::Make(absolute, ifExists, [&](std::unique_ptr<ILayerStore> store) {
        MapDocument document(std::move(store), absolute);
        if (fill)
            fill(document);
    });
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

std::unique_ptr<MapDocument> MapDocument::Open(const QString& path)
{
    return OpenCopy(path, path);
}

std::unique_ptr<MapDocument> MapDocument::OpenCopy(const QString& copy, const QString& original)
{
    StoreOptions options;
    options.shownPath = QFileInfo(original).absoluteFilePath();
    auto database = LayerStores::Open(QFileInfo(copy).absoluteFilePath(), OpenMode::ReadWrite, options);
    return std::unique_ptr<MapDocument>(new MapDocument(std::move(database), options.shownPath));
}

MapDocument::MapDocument(std::unique_ptr<ILayerStore> database, const QString& path)
    : m_database(std::move(database)), m_path(path), m_sources(*m_database, m_path), m_renderings(*m_database)
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

void MapDocument::SaveCopy(const QString& path) const
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    m_database->CopyToFile(absolute, IfExists::Replace, [&](std::unique_ptr<ILayerStore> store) {
        // Relative paths start from the folder of the copy.
        MapDocument copy(std::move(store), absolute);
        Transaction transaction(copy.Database());
        for (const LayerSource& source : Sources())
            copy.SetSource(source);
        transaction.Commit();
    });
}

bool MapDocument::IsAt(const QString& path) const
{
    const QString there = QFileInfo(path).canonicalFilePath(); // empty if there is no file
    return !there.isEmpty() && there == QFileInfo(m_path).canonicalFilePath();
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
    Transaction transaction(*m_database);
    row.Set("Code", LayerRow::LowestFreeCode(*m_database));
    const qint32 layerID = row.StoreNew(*m_database);
    SetSource({layerID, layer.path, layer.ogrLayer, layer.filter, layer.system, layer.choice, layer.kind});
    transaction.Commit();
    return layerID;
}

qint32 MapDocument::AddGroup(const QString& name, bool expanded)
{
    const QString table = QStringLiteral("LayerGroups");
    const qint32 groupID = NextOf(QStringLiteral("ID"), table);
    const qint32 ordering = NextOf(QStringLiteral("GroupOrdering"), table);
    m_database->Execute(
        QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering, Expanded) VALUES (?1, ?2, ?3, ?4)"),
        {groupID, name, ordering, expanded});
    return groupID;
}

void MapDocument::AddMember(qint32 groupID, qint32 layerID)
{
    m_database->Execute(
        QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) SELECT ?1, ?2, count(*)"
                       " FROM LayerGroupMembers WHERE GroupID = ?1"),
        {groupID, layerID});
}

std::vector<LayerSource> MapDocument::Sources() const
{
    return m_sources.All();
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

// A number beyond 32 bits, which another program may have stored, is passed over.
qint32 MapDocument::NextOf(const QString& column, const QString& table) const
{
    const QString sql = QStringLiteral("SELECT coalesce(max(%1), 0) + 1 AS Next FROM %2 WHERE %1 < 2147483647"
                                       " AND typeof(%1) = 'integer'")
                            .arg(column, table);
    return ToInt32(m_database->OpenRecordset(sql)->Field("Next"));
}

} // namespace Orvane
