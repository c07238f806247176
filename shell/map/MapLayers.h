// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"
#include "mapkit/drawing/MapLayer.h"
#include "shell/map/LayerAttributes.h"

#include <QSet>

#include <vector>

namespace Orvane {

class IRecordset;
class IShellServices;
class MapDocument;
class Progress;

/// The layers of a map file as the canvas draws them, kept in step with the database.
///
/// Errors of the database are passed on; the layers held are then as before.
class MapLayers
{
public:
    /// Neither is owned; both outlive this object. pixelsPerMillimetre: of the screen.
    MapLayers(const MapDocument& document, const IShellServices& services, double pixelsPerMillimetre);

    const std::vector<MapLayer>& All() const { return m_layers; }

    /// Reads all rows again.
    void ReadAll();
    /// Reads at least these layers' rows again; a layer without a row is removed from the list.
    void Read(const QSet<qint32>& layerIDs);

    /// Drops the features and rasters of layers whose data are no longer those of the last call: the ID of a
    /// deleted layer may now belong to a new one. Drops those of layers that have no source any more, too.
    /// Call before ReadAll.
    void DropFeaturesOfOtherData();
    /// Drops the features and rasters of all layers: they are in a coordinate system that the map no longer
    /// has.
    void DropAllFeatures();
    /// Takes over the features and rasters that were read, and the layers that could not be read; those of
    /// other layers stay.
    void TakeFeatures(const SourceContents& contents);
    /// Leaves the rasters of these layers out of All, because they turned out to be damaged. Such a layer
    /// counts as unreadable, and its data as read: not as missing.
    void LeaveOut(const QSet<qint32>& damaged);
    /// All, with the rasters that were left out: for a page, which must not lack a layer without an error.
    std::vector<MapLayer> WithDamaged() const;
    /// The sources of layers that have no features or raster yet.
    std::vector<LayerSource> MissingSources() const;
    /// The layers whose source could not be read when it was last tried.
    const QSet<qint32>& Unreadable() const { return m_unreadable; }

    /// The attributes that renderer styles need and that were not read yet.
    std::vector<AttributeRequest> MissingAttributes() const;
    /// Takes over an attribute that was read.
    void TakeAttribute(const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column);
    /// Reads the missing attributes in the calling thread; those of sources that cannot be read are left out.
    /// Raises Cancelled.
    void ReadMissingAttributes(Progress& progress);

private:
    MapLayer LayerOfRow(const IRecordset& row) const;
    std::vector<MapLayer> LayersWithIDs(const std::vector<qint32>& layerIDs) const;
    void Replace(const MapLayer& layer);
    void Remove(qint32 layerID);
    std::vector<MapLayer>::iterator Find(qint32 layerID);
    void FitAttributes();
    void FitData(MapLayer& layer) const;
    void DropFeatures(qint32 layerID);
    void DropFeaturesExcept(const QSet<qint32>& withSource);

    const MapDocument& m_document;
    const IShellServices& m_services;
    double m_pixelsPerMillimetre;
    std::vector<MapLayer> m_layers;
    std::map<qint32, std::shared_ptr<const FeatureSet>> m_features;
    std::map<qint32, std::shared_ptr<const MapRaster>> m_rasters;
    std::map<qint32, std::shared_ptr<const MapRaster>> m_damaged; // that were left out
    std::map<qint32, LayerSource> m_sources; // known so far; also of deleted layers
    QSet<qint32> m_unreadable;
    LayerAttributes m_attributes;
};

} // namespace Orvane
