// SPDX-License-Identifier: MIT
#include "shell/map/MapLayers.h"

#include "hostkit/common/StoredScale.h"
#include "mapkit/document/MapDocument.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane {

namespace {

constexpr qsizetype FewLayers = 64; // from here on reading all rows at once is faster

// A column that is null or holds no number counts as the value given: the rest of the map is drawn.
double NumberOr(const IRecordset& row, std::string_view column, double otherwise)
{
    return NumberIn(row.Field(column)).value_or(otherwise);
}

int WholeOr(const IRecordset& row, std::string_view column, int otherwise)
{
    return Int32In(row.Field(column)).value_or(otherwise);
}

DrawingValues ValuesOfRow(const IRecordset& row)
{
    DrawingValues values;
    values.color = WholeOr(row, "Color", 0);
    values.fillForeColor = WholeOr(row, "FillForeColor", 0);
    values.fillBackColor = WholeOr(row, "FillBackColor", 0);
    values.outlineStyle = WholeOr(row, "OutlineStyle", 0);
    values.fillStyle = WholeOr(row, "FillStyle", 0);
    values.lineThickness = WholeOr(row, "LineThickness", 0);
    values.style = WholeOr(row, "Style", 0);
    return values;
}

LayerFlags FlagsOfRow(const IRecordset& row)
{
    LayerFlags flags;
    flags.selectable = WholeOr(row, "Selectable", 1) != 0;
    flags.locked = WholeOr(row, "locked", 0) != 0;
    flags.hitable = WholeOr(row, "Hitable", 1) != 0;
    flags.snapRequired = WholeOr(row, "SnapRequired", 0) != 0;
    flags.enquirable = WholeOr(row, "Enquirable", 1) != 0;
    return flags;
}

DrawMode ModeOfRow(const IRecordset& row)
{
    const int mode = WholeOr(row, "OverrideMode", 0);
    return mode == int(DrawMode::Backdrop) || mode == int(DrawMode::Hidden) ? DrawMode(mode)
                                                                            : DrawMode::Normal;
}

bool IsSameData(const LayerSource& one, const LayerSource& other)
{
    return one.path == other.path && one.ogrLayer == other.ogrLayer && one.filter == other.filter
        && one.system == other.system && one.choice == other.choice && one.kind == other.kind;
}

template <typename Data>
std::shared_ptr<const Data> DataOf(const std::map<qint32, std::shared_ptr<const Data>>& all, qint32 layerID)
{
    const auto found = all.find(layerID);
    return found == all.end() ? nullptr : found->second;
}

} // namespace

MapLayers::MapLayers(const MapDocument& document, const IShellServices& services, double pixelsPerMillimetre)
    : m_document(document), m_services(services), m_pixelsPerMillimetre(pixelsPerMillimetre)
{
}

void MapLayers::ReadAll()
{
    std::vector<MapLayer> layers;
    const auto rows = m_document.Database().OpenRecordset(QStringLiteral("SELECT * FROM Layers"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (Int32In(rows->Field("LayerID"))) // nothing else could refer to the layer
            layers.push_back(LayerOfRow(*rows));
    }
    m_layers = std::move(layers);
    for (const auto& [layerID, rendering] : m_document.Renderings().All())
        m_attributes.SetRendering(layerID, rendering);
    FitAttributes();
}

void MapLayers::DropFeaturesOfOtherData()
{
    const std::vector<LayerSource> sources = m_document.Sources();
    QSet<qint32> withSource;
    withSource.reserve(qsizetype(sources.size()));
    for (const LayerSource& source : sources) {
        withSource.insert(source.layerID);
        const auto [known, isNew] = m_sources.try_emplace(source.layerID, source);
        if (isNew || IsSameData(known->second, source))
            continue;
        known->second = source;
        DropFeatures(source.layerID);
    }
    DropFeaturesExcept(withSource);
}

void MapLayers::DropFeatures(qint32 layerID)
{
    m_features.erase(layerID);
    m_rasters.erase(layerID);
    m_damaged.erase(layerID);
    m_unreadable.remove(layerID);
}

void MapLayers::DropAllFeatures()
{
    m_features.clear();
    m_rasters.clear();
    m_damaged.clear();
    m_unreadable.clear();
}

// Layers that another window or program deleted.
void MapLayers::DropFeaturesExcept(const QSet<qint32>& withSource)
{
    std::vector<qint32> gone;
    gone.reserve(m_features.size() + m_rasters.size() + m_damaged.size());
    const auto add = [&](const auto& entry) {
        if (!withSource.contains(entry.first))
            gone.push_back(entry.first);
    };
    std::for_each(m_features.begin(), m_features.end(), add);
    std::for_each(m_rasters.begin(), m_rasters.end(), add);
    std::for_each(m_damaged.begin(), m_damaged.end(), add);
    for (const qint32 layerID : gone) {
        DropFeatures(layerID);
        m_attributes.Forget(layerID);
    }
    m_unreadable.intersect(withSource);
}

void MapLayers::Read(const QSet<qint32>& layerIDs)
{
    if (layerIDs.size() > FewLayers)
        return ReadAll();
    const std::vector<qint32> wanted(layerIDs.begin(), layerIDs.end());
    const std::vector<MapLayer> layers = LayersWithIDs(wanted);
    std::map<qint32, LayerRendering> renderings = m_document.Renderings().Of(wanted);
    QSet<qint32> missing = layerIDs;
    for (const MapLayer& layer : layers) {
        Replace(layer);
        missing.remove(layer.layerID);
    }
    for (const qint32 layerID : missing)
        Remove(layerID);
    for (const qint32 layerID : wanted)
        m_attributes.SetRendering(layerID, renderings[layerID]);
    FitAttributes();
}

std::vector<MapLayer> MapLayers::LayersWithIDs(const std::vector<qint32>& layerIDs) const
{
    std::vector<MapLayer> layers;
    layers.reserve(layerIDs.size());
    KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        const auto rows = m_document.Database().OpenQuery(
            QStringLiteral("SELECT * FROM Layers WHERE LayerID IN ") + list, values);
        for (; !rows->AtEOF(); rows->MoveNext())
            layers.push_back(LayerOfRow(*rows));
    });
    return layers;
}

void MapLayers::TakeFeatures(const SourceContents& contents)
{
    for (const auto& [layerID, features] : contents.features) {
        DropFeatures(layerID);
        m_features[layerID] = features;
    }
    for (const auto& [layerID, raster] : contents.rasters) {
        DropFeatures(layerID);
        m_rasters[layerID] = raster;
    }
    for (const auto& [layerID, reason] : contents.failures) {
        DropFeatures(layerID);
        m_unreadable.insert(layerID);
    }
    for (MapLayer& layer : m_layers)
        FitData(layer);
    FitAttributes();
}

void MapLayers::LeaveOut(const QSet<qint32>& damaged)
{
    for (const qint32 layerID : damaged) {
        if (auto raster = m_rasters.extract(layerID)) {
            m_damaged.insert(std::move(raster));
            m_unreadable.insert(layerID);
        }
    }
    for (MapLayer& layer : m_layers)
        FitData(layer);
}

std::vector<MapLayer> MapLayers::WithDamaged() const
{
    std::vector<MapLayer> layers = m_layers;
    for (MapLayer& layer : layers) {
        if (m_damaged.contains(layer.layerID))
            layer.raster = DataOf(m_damaged, layer.layerID);
    }
    return layers;
}

std::vector<LayerSource> MapLayers::MissingSources() const
{
    std::vector<LayerSource> sources = m_document.Sources();
    std::erase_if(sources, [&](const LayerSource& source) {
        return m_features.contains(source.layerID) || m_rasters.contains(source.layerID)
            || m_damaged.contains(source.layerID);
    });
    return sources;
}

std::vector<AttributeRequest> MapLayers::MissingAttributes() const
{
    const bool isPlain = std::all_of(
        m_layers.begin(), m_layers.end(), [](const MapLayer& layer) { return layer.values.style == 0; });
    if (isPlain)
        return {};
    return m_attributes.Missing(m_layers, m_document.Sources());
}

void MapLayers::TakeAttribute(const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column)
{
    m_attributes.Take(request, std::move(column));
    FitAttributes();
}

void MapLayers::ReadMissingAttributes(Progress& progress)
{
    for (const AttributeRequest& request : MissingAttributes()) {
        try {
            const AttributeColumn column = ReadAttribute(request, progress);
            TakeAttribute(request, std::make_shared<const AttributeColumn>(column));
        } catch (const RunTimeError&) { // the map is drawn without the attribute
        }
    }
}

void MapLayers::FitAttributes()
{
    for (MapLayer& layer : m_layers)
        m_attributes.Fit(layer, m_services);
}

void MapLayers::FitData(MapLayer& layer) const
{
    layer.features = DataOf(m_features, layer.layerID);
    layer.raster = DataOf(m_rasters, layer.layerID);
}

MapLayer MapLayers::LayerOfRow(const IRecordset& row) const
{
    MapLayer layer;
    layer.layerID = ToInt32(row.Field("LayerID"));
    const Value name = row.Field("Name");
    layer.name = ToTextOrNone(name);
    layer.visible = WholeOr(row, "Visible", 1) != 0;
    layer.flags = FlagsOfRow(row);
    layer.mode = ModeOfRow(row);
    layer.priority = WholeOr(row, "Priority", LowestPriority);
    const double minimum = NumberOr(row, "MinVisScale", 0);
    layer.minDenominator = minimum < StoredScale::BeyondAllScales ? minimum : StoredScale::NoLimit;
    const double limit = NumberOr(row, "MaxVisScale", 0);
    if (limit > 0)
        layer.maxDenominator = limit;
    layer.values = ValuesOfRow(row);
    layer.look = LookOf(layer.values, m_services, m_pixelsPerMillimetre);
    FitData(layer);
    return layer;
}

void MapLayers::Replace(const MapLayer& layer)
{
    const auto known = Find(layer.layerID);
    if (known == m_layers.end())
        m_layers.push_back(layer);
    else
        *known = layer;
}

void MapLayers::Remove(qint32 layerID)
{
    const auto known = Find(layerID);
    if (known != m_layers.end())
        m_layers.erase(known);
    DropFeatures(layerID);
    m_attributes.Forget(layerID);
}

std::vector<MapLayer>::iterator MapLayers::Find(qint32 layerID)
{
    return std::find_if(
        m_layers.begin(), m_layers.end(), [&](const MapLayer& layer) { return layer.layerID == layerID; });
}

} // namespace Orvane
