// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/GeometryReader.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <tuple>

namespace Orvane {

class FeatureWatch;
class Package;
class Progress;
struct LayerSource;

/// Reads layers of one GeoPackage past GDAL, and gives what GDAL would give. For the thread that made it.
///
///     PackageReader package(path);
///     if (auto features = package.Read(source, system, progress))
///         Show(*features);
class PackageReader
{
public:
    /// The file need not be a GeoPackage. It is opened when the first layer is read.
    explicit PackageReader(const QString& path);
    ~PackageReader();
    PackageReader(const PackageReader&) = delete;
    PackageReader& operator=(const PackageReader&) = delete;

    const QString& Path() const { return m_path; }
    /// The features of a layer in the map's coordinate system. Nothing if GDAL must be asked: for other files
    /// and layers with a filter, and for all that is not known for certain, such as failures. Raises
    /// Cancelled, and RunTimeError for too much data or reading without an end, as DataSource::Read does.
    std::optional<FeatureSet> Read(const LayerSource& source, const QString& mapSystem, Progress& progress);

private:
    // How coordinates get from the system of a layer onto a map.
    struct Passage {
        QString system; // the layer's
        std::shared_ptr<OGRCoordinateTransformation> transformation;
        GeometryRules rules;
    };
    using PassageKey = std::tuple<int, QString, QString>; // number, chosen system, map's system

    Package& Opened();
    const Passage& PassageOf(int system, const QString& chosenSystem, const QString& mapSystem);
    void
    ReadLayer(const LayerSource& source, const QString& mapSystem, FeatureSet& features, FeatureWatch& watch);

    QString m_path;
    bool m_isOpened = false;
    std::unique_ptr<Package> m_package; // null if it is none, or not known for certain
    std::map<PassageKey, Passage> m_passages;
};

} // namespace Orvane
