// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/data/DataKind.h"
#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/GeometryChoice.h"
#include "mapkit/tables/ColumnGuess.h"

#include <QString>

#include <limits>
#include <memory>
#include <unordered_map>
#include <vector>

class OGRLayer;

namespace Orvane {

class GdalErrors;
class OpenedData;
class Progress;

/// The number of the RunTimeError for data that cannot be read.
inline constexpr int SourceUnreadable = 10101;

/// One layer of a data source.
struct SourceLayer {
    QString name; ///< the name in the source; of a raster its name in an archive or a GeoPackage, or empty
    FeatureKind kind = FeatureKind::Area; ///< the lowest one of a mixed layer
    QString system; ///< coordinate system, as in CoordinateSystems.h; empty when the source names none
    Box extent; ///< in its own units; empty if the source does not know it
    QString chosenSystem = {}; ///< what was chosen or assumed for it when the source names none
    std::vector<FeatureKind> kinds = {}; ///< all kinds that were found, the topmost first
    GeometryChoice choice = {}; ///< what Read takes to get this layer; the columns of a table
    bool isEmpty = false; ///< known only for formats that make empty layers, such as GPX
    QString partsOf = {}; ///< the layer that shows its features as a whole, for the points of GPX tracks
    DataKind dataKind = DataKind::Features;
};

/// What a source tells about one of its layers.
struct SourceDetails {
    QString driver; ///< the format, "GeoPackage"
    QString geometry; ///< as GDAL names it, "Multi Polygon"
    qint64 featureCount = -1; ///< -1 if the source does not know it
    QString system; ///< that the source names, as in CoordinateSystems.h; empty for none
    Box extent; ///< in its own units; empty if the source does not know it
};

/// What reading all features of a layer tells.
struct LayerMeasure {
    Box extent; ///< in its own units; empty if there are none
    qint64 featureCount = 0; ///< those with a geometry that is not empty
};

/// One attribute of a source layer.
struct SourceField {
    QString name;
    bool isNumber = false;
    bool isText = false; ///< neither is true for a date, a list or a flag
};

/// The value of a feature's attribute.
struct FieldValue {
    QString text; ///< trimmed, as the source writes it; empty for null
    double number = std::numeric_limits<double>::quiet_NaN(); ///< NaN for null and for a text

    /// How much memory it uses in a table by feature ID.
    double Bytes() const;
};

/// One attribute of a feature, for showing it to the user.
struct FeatureAttribute {
    QString name;
    QString value; ///< as the source writes it
    bool isNull = false;
};

/// A file, or another source that GDAL's vector drivers can open, read-only. An archive with data files is
/// one source with the layers of all of them; a compressed file is opened as if it were not.
///
///     DataSource source(path);
///     for (const SourceLayer& layer : source.Layers())
///         features = source.Read(layer.name, {}, "EPSG:3857", progress);
///
/// An object may be used by only one thread at a time; different objects may be used by different threads.
/// Errors are RunTimeError with SourceUnreadable and a sentence that names the file. A source that gives
/// nothing for ReadingBound::LongestWait is one; members raise Cancelled when an outer ReadingBound was.
class DataSource
{
public:
    /// Raises if no driver can open it.
    explicit DataSource(const QString& path);
    ~DataSource();
    DataSource(const DataSource&) = delete;
    DataSource& operator=(const DataSource&) = delete;

    /// The layers that have geometry, in the source's order; then the tables whose coordinate columns can be
    /// guessed, of which many rows are read.
    std::vector<SourceLayer> Layers() const;
    /// The same without tables.
    std::vector<SourceLayer> LayersWithGeometry() const;
    /// Whether there is a layer or a table of that name.
    bool Has(const QString& layer) const;

    /// The first rows of each table of a file without geometries; tables beside layers with geometry do not
    /// count. Raises as Layers does.
    std::vector<TableRows> Tables() const;
    /// A table as a layer with these coordinate columns. Reads many rows. Raises for an unknown table.
    SourceLayer TableAsLayer(const QString& table, const CoordinateColumns& columns) const;

    /// The files in an archive that cannot be opened.
    QStringList UnopenedFiles() const;

    /// Reads a layer's geometries into the map's coordinate system. filter: a condition in GDAL's attribute
    /// filter language, e.g. "continent = 'Asia'"; empty for all features. Raises for an unknown layer, a
    /// filter that is not understood, missing columns and damaged data; raises Cancelled. choice: which
    /// geometries. chosenSystem: of the layer, instead of the one that the source names; empty for that one.
    FeatureSet Read(
        const QString& layer, const QString& filter, const QString& mapSystem, Progress& progress,
        const GeometryChoice& choice = {}, const QString& chosenSystem = {}) const;
    /// Reads all features of a layer for their number and extent. For layers whose extent the source does not
    /// know, and for parts of a layer, of which it knows nothing. choice: which geometries count. Raises as
    /// Read does.
    LayerMeasure Measure(const QString& layer, Progress& progress, const GeometryChoice& choice = {}) const;
    /// More about a whole layer, for showing it to the user; raises for an unknown layer. The number of
    /// features and the extent may be missing when finding them means reading all features.
    SourceDetails Details(const QString& layer) const;

    /// The attributes of a layer, in the source's order; raises for an unknown layer.
    std::vector<SourceField> Fields(const QString& layer) const;
    /// The values of one attribute by feature ID. Raises as Read does, and for an unknown attribute.
    std::unordered_map<qint64, FieldValue>
    ReadField(const QString& layer, const QString& filter, const QString& field, Progress& progress) const;
    /// The attributes of one feature, in the source's order; none if there is no longer a feature with that
    /// ID.
    std::vector<FeatureAttribute> Attributes(const QString& layer, qint64 featureID) const;

private:
    OGRLayer& FilteredLayer(const QString& name, const QString& filter, const GdalErrors& errors) const;
    [[noreturn]] void Fail(const QString& reason) const;

    QString m_path;
    std::unique_ptr<OpenedData> m_data;
};

} // namespace Orvane
