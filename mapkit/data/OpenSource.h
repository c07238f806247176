// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <QString>

#include <memory>

namespace Orvane {

class DataSource;
class PackageReader;
class Progress;
struct LayerSource;

/// Keeps the file open that was asked for last: opening one with many layers takes longer than reading one of
/// them. Ask for the layers of a file one after the other. For the thread that uses it only.
///
///     OpenSource open;
///     for (const LayerSource& layer : layers)
///         open.At(layer.path).Read(...);
class OpenSource
{
public:
    OpenSource();
    ~OpenSource();
    OpenSource(const OpenSource&) = delete;
    OpenSource& operator=(const OpenSource&) = delete;

    /// The source with that path; opens it unless it is the last one. Valid until the next call. Raises as
    /// DataSource does.
    const DataSource& At(const QString& path);
    /// The features of a layer in the map's coordinate system, as DataSource::Read gives them. Many layers of
    /// one GeoPackage are read past GDAL, which takes longer. Raises as DataSource does.
    FeatureSet Read(const LayerSource& source, const QString& mapSystem, Progress& progress);

private:
    PackageReader& PackageAt(const QString& path);

    QString m_path;
    std::unique_ptr<const DataSource> m_source;
    std::unique_ptr<PackageReader> m_package; // of the file that was read last
};

} // namespace Orvane
