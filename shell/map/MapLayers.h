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
/// Errors of the database are passed on; what is held then stays as it was.
class MapLayers
{
public:
    /// Neither is owned; both outlive this object. pixelsPerMillimetre: of the screen.
    MapLayers(const MapDocument& document, const IShellServices& services, double pixelsPerMillimetre);

    const std::vector<MapLayer>& All() const { return m_layers; }

    /// Reads all rows anew.
    void ReadAll();
    /// Reads at least these layers' rows anew; a layer whose row is gone leaves the list.
    void Read(const QSet<qint32>& layerIDs);

    /// Gives up the features of layers that have other data than when this was called last: an ID of a layer
    /// that is gone may have come to a new one. Before ReadAll.
    void DropFeaturesOfOtherData();
    /// Takes over features that were read, and which could not be; those of other layers stay.
    void TakeFeatures(const SourceContents& contents);
    /// The sources of layers that have no features yet.
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
    void Replace(qint32 layerID, const IRecordset& row);
    void FitAttributes();

    const MapDocument& m_document;
    const IShellServices& m_services;
    double m_pixelsPerMillimetre;
    std::vector<MapLayer> m_layers;
    std::map<qint32, std::shared_ptr<const FeatureSet>> m_features;
    std::map<qint32, LayerSource> m_sources; // known so far; also of layers that are gone
    QSet<qint32> m_unreadable;
    LayerAttributes m_attributes;
};

} // namespace Orvane
