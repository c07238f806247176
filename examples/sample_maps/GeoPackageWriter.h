// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <QString>

#include <memory>
#include <vector>

class GDALDataset;
class OGRSpatialReference;

namespace Orvane {

/// Heights on a regular grid, row by row from the north.
struct HeightGrid {
    static constexpr float NoHeight = -32768; ///< no contour line is drawn near such a point

    int columns = 0;
    int rows = 0;
    double west = 0; ///< map units, of the grid's left edge
    double north = 0; ///< map units, of its top edge
    double cellSize = 1; ///< map units
    std::vector<float> heights; ///< columns * rows values
};

/// Writes generated features into a GeoPackage file. Errors are RunTimeErrors that name the file.
class GeoPackageWriter
{
public:
    /// Replaces a file of that name. system: coordinate system, as in CoordinateSystems.h.
    GeoPackageWriter(const QString& path, const QString& system);
    /// Completes the file.
    ~GeoPackageWriter();
    GeoPackageWriter(const GeoPackageWriter&) = delete;
    GeoPackageWriter& operator=(const GeoPackageWriter&) = delete;

    /// Adds a layer with these features, all of one kind.
    void AddLayer(const QString& name, const FeatureSet& features);
    /// Adds a layer with the contour lines of a grid, one for each interval of height.
    void AddContours(const QString& name, const HeightGrid& grid, double interval);

private:
    void Check(bool succeeded) const;

    QString m_path;
    std::unique_ptr<OGRSpatialReference> m_system;
    std::unique_ptr<GDALDataset> m_dataset;
};

} // namespace Orvane
