// SPDX-License-Identifier: MIT
#include "shell/map/MapExtent.h"

#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/MapRaster.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/files/ReadingBound.h"
#include "shell/map/DataImport.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <algorithm>
#include <map>
#include <tuple>

namespace Orvane {

namespace {

Box ExtentOfRaster(const LayerSource& source, const QString& system)
{
    try {
        return MapRaster(source, system).Extent();
    } catch (const RunTimeError&) { // it is reported when the map is read
        return {};
    }
}

// Two layers may show the same data in different systems, or other columns of one table.
using Part = std::tuple<QString, QString, QString>; // layer, system, columns

Part PartOf(const LayerSource& source)
{
    return {source.ogrLayer, source.system, GeometryChoice{source.choice.columns, {}}.ToText()};
}

// The layers of one file.
class FileExtent
{
public:
    FileExtent(const QString& path, Progress& progress)
        : m_data(path), m_layers(m_data.Layers()), m_progress(progress)
    {
    }

    Box Of(const LayerSource& source, const QString& system) const
    {
        SourceLayer layer = Found(source);
        layer.chosenSystem = source.system;
        if (layer.extent.IsEmpty())
            layer.extent = m_data.Measure(layer.name, m_progress, layer.choice).extent;
        return Transformed(layer.extent, SystemOf(layer), system);
    }

private:
    SourceLayer Found(const LayerSource& source) const
    {
        const auto found = std::find_if(m_layers.begin(), m_layers.end(), [&](const SourceLayer& layer) {
            return layer.name == source.ogrLayer && layer.choice.columns == source.choice.columns;
        });
        if (found != m_layers.end())
            return *found;
        SourceLayer layer = m_data.TableAsLayer(source.ogrLayer, source.choice.columns);
        layer.name = source.ogrLayer;
        return layer;
    }

    DataSource m_data;
    std::vector<SourceLayer> m_layers;
    Progress& m_progress;
};

Box ExtentOfTable(const LayerSource& source, const QString& system, Progress& progress)
{
    try {
        SourceLayer layer = TablesOf(source).Describe(source.ogrLayer, progress);
        layer.chosenSystem = source.system;
        return Transformed(layer.extent, SystemOf(layer), system);
    } catch (const RunTimeError&) { // it is reported when the map is read
        return {};
    }
}

using FileParts = std::map<Part, const LayerSource*>;

// What cannot be read is reported when the map is read.
Box ExtentOfFile(const QString& path, const FileParts& parts, const QString& system, Progress& progress)
{
    Box extent;
    try {
        const FileExtent file(path, progress);
        for (const auto& [part, source] : parts) {
            progress.StopIfCancelled();
            try {
                extent.Add(file.Of(*source, system));
            } catch (const RunTimeError&) {
                continue;
            }
        }
    } catch (const RunTimeError&) {
        return {};
    }
    return extent;
}

} // namespace

Box ExtentOfMap(const std::vector<LayerSource>& sources, const QString& system, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    std::map<QString, FileParts> files; // each is opened once
    Box extent;
    for (const LayerSource& source : sources) {
        progress.StopIfCancelled();
        if (source.kind == DataKind::Raster)
            extent.Add(ExtentOfRaster(source, system));
        else if (IsServerTable(source.path))
            extent.Add(ExtentOfTable(source, system, progress));
        else
            files[source.path].emplace(PartOf(source), &source);
    }
    for (const auto& [path, parts] : files)
        extent.Add(ExtentOfFile(path, parts, system, progress));
    return extent;
}

} // namespace Orvane
