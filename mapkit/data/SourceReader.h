// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataKind.h"
#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/GeometryChoice.h"

#include <QString>
#include <QtGlobal>

#include <map>
#include <memory>
#include <vector>

namespace Orvane {

class MapRaster;
class Progress;
class ServerTables;

/// Where a layer's data come from.
struct LayerSource {
    qint32 layerID = 0;
    QString path; ///< absolute, ServerTablePath, or another name that GDAL opens
    QString
        ogrLayer; ///< layer within the source; of a raster its name in an archive or a GeoPackage, or empty
    QString filter; ///< attribute condition; empty for all features
    QString system = {}; ///< coordinate system that was chosen for the data; empty: the one that they name
    GeometryChoice choice = {}; ///< which geometries
    DataKind kind = DataKind::Features; ///< what the source is read as
    std::shared_ptr<const ServerTables> server = {}; ///< what reads a path that is ServerTablePath
};

/// The result of reading the sources.
struct SourceContents {
    std::map<qint32, std::shared_ptr<const FeatureSet>> features; ///< by layer ID
    std::map<qint32, std::shared_ptr<const MapRaster>> rasters; ///< by layer ID
    std::map<qint32, QString> failures; ///< why a layer could not be read, by layer ID

    /// Whether the layer was read, or could not be read.
    bool Has(qint32 layerID) const;
    /// Adds what was read of other layers.
    void Add(SourceContents other);
    /// The failures as lines of text for the user, each once, limited to a readable number.
    QString FailureText() const;
};

/// Reads sources into the map's coordinate system, opening each file once; rasters are opened only. Failures
/// are reported in the result and do not stop the reading of other sources. If the progress is cancelled,
/// returns what was read so far.
SourceContents ReadSources(std::vector<LayerSource> sources, const QString& mapSystem, Progress& progress);

} // namespace Orvane
