// SPDX-License-Identifier: MIT
#include "shell/command/ExportCommand.h"

#include "hostkit/StandardShellServices.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/MapPage.h"
#include "mapkit/output/PageWriter.h"
#include "shell/command/DataSentences.h"
#include "shell/command/ExportOptions.h"
#include "shell/command/MapCopy.h"
#include "shell/map/MapLayers.h"
#include "store/ILayerStore.h"

#include <QCoreApplication>

#include <algorithm>

namespace Orvane {

namespace {

constexpr double Room = 0.02; // share of the map's longer side, added on each side

// The bounds of what is drawn, with some room around them.
Box BoundsOf(const std::vector<MapLayer>& layers)
{
    Box bounds;
    for (const MapLayer& layer : layers) {
        if (layer.visible && layer.mode != DrawMode::Hidden)
            bounds.Add(layer.Bounds());
    }
    const double room = bounds.IsEmpty() ? 0 : Room * std::max(bounds.Width(), bounds.Height());
    return {bounds.minX - room, bounds.minY - room, bounds.maxX + room, bounds.maxY + room};
}

int Export(const ExportRequest& request, const Terminal& terminal)
{
    const MapCopy copy(request.map);
    MapDocument& document = copy.Document();
    if (!request.scheme.isNull())
        LayerSchemes(document.Database()).Load(request.scheme);
    const StandardShellServices services;
    Progress progress;
    const SourceContents contents = ReadSources(document.Sources(), document.System(), progress);
    MapLayers layers(document, services, PagePixelsPerMillimetre);
    layers.ReadAll();
    layers.TakeFeatures(contents);
    layers.ReadMissingAttributes(progress);
    const MapPage page(
        document.Database(), services,
        {layers.All(), document.System(), BoundsOf(layers.All()), document.Background()}, request.page);
    WritePage(page, request.file, progress);
    for (const QString& failure : FailuresWithPaths(contents, document.Sources()))
        TellError(terminal, failure);
    return contents.failures.empty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace

int ExportCommand(const QStringList& arguments, const Terminal& terminal)
{
    const auto read = ReadExportOptions(arguments, terminal);
    if (const int* ended = std::get_if<int>(&read))
        return *ended;
    return Export(std::get<ExportRequest>(read), terminal);
}

} // namespace Orvane
