// SPDX-License-Identifier: MIT
#include "shell/map/DataImport.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/OpenSource.h"
#include "mapkit/data/RasterSource.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/DataFiles.h"
#include "mapkit/files/OpenedData.h"
#include "mapkit/files/ReadingBound.h"
#include "samples/BgrColour.h"
#include "shell/map/FoundLayers.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

struct Colours {
    QRgb line;
    QRgb fill;
};

constexpr std::array<Colours, 8> Cycle = {{
    {0xff3b6ea5, 0xffd3e2f2},
    {0xff5d7f3a, 0xffdde8cf},
    {0xffa2543c, 0xfff1dccf},
    {0xff7a5c99, 0xffe5dcee},
    {0xff8a7433, 0xffefe7c8},
    {0xff3b8686, 0xffd0e8e6},
    {0xff9c4a6f, 0xfff2d8e3},
    {0xff5f6b73, 0xffe1e5e8},
}};

// Points are drawn over lines, and lines over areas.
int PriorityOf(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Point:
        return 60;
    case FeatureKind::Line:
        return 110;
    case FeatureKind::Area:
        break;
    }
    return 170;
}

NewLayer NewFeatureLayer(FeatureKind kind, size_t number)
{
    const Colours& colours = Cycle[number % Cycle.size()];
    NewLayer layer;
    layer.values.color = Bgr(colours.line);
    layer.values.fillForeColor = Bgr(colours.fill);
    layer.values.fillBackColor = TransparentColour;
    layer.priority = PriorityOf(kind);
    return layer;
}

auto Find(FoundData& data, const QString& path)
{
    return std::find_if(data.sources.begin(), data.sources.end(), [&](const FoundData::Source& source) {
        return source.path == path;
    });
}

// An archive may have tables and other layers: one source.
void AddLayers(FoundData& data, const QString& path, const std::vector<SourceLayer>& layers)
{
    const auto known = Find(data, path);
    if (known == data.sources.end())
        data.sources.push_back({path, layers});
    else
        known->layers.insert(known->layers.end(), layers.begin(), layers.end());
}

// Does nothing if text is empty.
void AddProblem(FoundData& data, const QString& path, const QString& text)
{
    if (!text.isEmpty())
        data.problems.push_back({path, text});
}

// Adds the features of a file. False if there are none; raises if no driver for features opens the file.
bool LookForFeatures(const QString& path, FoundData& data)
{
    const QString name = QFileInfo(path).fileName();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const DataSource source(path);
    for (const QString& file : source.UnopenedFiles()) {
        AddProblem(
            data, path,
            QCoreApplication::translate("DataImport", "\"%1\" in \"%2\" cannot be read.").arg(file, name));
    }
    const std::vector<SourceLayer> layers = LayersToShow(source.LayersWithGeometry());
    const std::vector<TableRows> tables = source.Tables();
    data.tables.reserve(data.tables.size() + tables.size());
    for (const TableRows& table : tables)
        data.tables.push_back({absolute, table, GuessColumns(table)});
    if (!layers.empty())
        AddLayers(data, absolute, layers);
    return !layers.empty() || !tables.empty();
}

// Adds the raster of a file, or one of those in it. Returns why it cannot be added; empty if it was.
QString TakeRaster(const QString& path, const QString& member, FoundData& data, const QString& otherwise)
{
    try {
        AddLayers(data, QFileInfo(path).absoluteFilePath(), {DescribeRaster(path, member)});
        return {};
    } catch (const RunTimeError& error) {
        const bool isRaster
            = error.Number() == RasterNotPlaced || !member.isEmpty() || DataFiles::IsNamedAsRaster(path);
        return isRaster ? error.Description() : otherwise;
    }
}

// The rasters within a file. Raises if finding them takes too long.
QStringList RastersIn(const QString& path)
{
    const GdalErrors quiet;
    const ReadingBound bound;
    QStringList rasters = RastersWithin(path);
    RequireReadingInTime(path);
    return rasters;
}

// hasFeatures: whether some were found. otherwise: the problem with a file that is no raster either.
void LookForRasters(const QString& path, FoundData& data, bool hasFeatures, const QString& otherwise)
{
    const QStringList members = RastersIn(path);
    for (const QString& member : members)
        AddProblem(data, path, TakeRaster(path, member, data, otherwise));
    if (!members.isEmpty() || (hasFeatures && !DataFiles::MayHoldBoth(path)))
        return;
    const QString problem = TakeRaster(path, {}, data, otherwise);
    AddProblem(data, path, hasFeatures ? QString() : problem);
}

void LookIntoFile(const QString& path, FoundData& data)
{
    QString problem = QCoreApplication::translate("DataImport", "\"%1\" contains nothing to draw.")
                          .arg(QFileInfo(path).fileName());
    bool hasFeatures = false;
    try {
        hasFeatures = LookForFeatures(path, data);
    } catch (const RunTimeError& error) {
        problem = error.Description();
    }
    try {
        LookForRasters(path, data, hasFeatures, problem);
    } catch (const RunTimeError& error) {
        AddProblem(data, path, error.Description());
    }
}

std::vector<SourceLayer> LayersOfTables(const std::vector<TableChoice>& tables, const QString& path)
{
    OpenSource open;
    std::vector<SourceLayer> layers;
    for (const TableChoice& table : tables) {
        if (table.path != path || table.columns.IsEmpty())
            continue;
        layers.push_back(open.At(path).TableAsLayer(table.table.layer, table.columns));
    }
    return LayersToShow(layers);
}

std::vector<NewLayer> NewLayersFor(const FoundData& data, size_t firstNumber)
{
    std::vector<NewLayer> layers;
    layers.reserve(LayerCount(data));
    for (const FoundData::Source& source : data.sources) {
        for (const SourceLayer& layer : source.layers)
            layers.push_back(LayerFor(source.path, layer, firstNumber + layers.size()));
    }
    return layers;
}

QStringList TitlesOf(const FoundData& data)
{
    QStringList titles;
    for (const FoundData::Source& source : data.sources)
        titles << SourceTitle(source.path);
    return titles;
}

} // namespace

QString FoundData::ProblemText() const
{
    QStringList lines;
    lines.reserve(qsizetype(problems.size()));
    for (const DataProblem& problem : problems)
        lines << problem.text;
    return lines.join(QLatin1Char('\n'));
}

size_t LayerCount(const FoundData& data)
{
    size_t count = 0;
    for (const FoundData::Source& source : data.sources)
        count += source.layers.size();
    return count;
}

NewLayer LayerFor(const QString& path, const SourceLayer& found, size_t number)
{
    const bool isRaster = found.dataKind == DataKind::Raster;
    NewLayer layer = isRaster ? NewLayer::OfRaster() : NewFeatureLayer(found.kind, number);
    layer.name = LayerTitle(path, found);
    layer.path = path;
    layer.ogrLayer = found.name;
    layer.system = found.chosenSystem;
    layer.choice = found.choice;
    layer.kind = found.dataKind;
    return layer;
}

FoundData LookInto(const QStringList& paths, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    const QStringList files = DataFiles::Meant(paths, [&] { progress.StopIfCancelled(); });
    FoundData data;
    double done = 0;
    for (const QString& path : files) {
        progress.StopIfCancelled();
        progress.SetSubject(path);
        progress.Report(done++ / double(files.size()));
        LookIntoFile(path, data);
    }
    return data;
}

FoundData WithTablesAsLayers(FoundData data, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    QStringList paths;
    for (const TableChoice& table : data.tables)
        paths << table.path;
    paths.removeDuplicates();
    for (const QString& path : paths) {
        progress.StopIfCancelled();
        progress.SetSubject(path);
        try {
            const std::vector<SourceLayer> layers = LayersOfTables(data.tables, path);
            if (layers.empty() && Find(data, path) == data.sources.end())
                AddProblem(
                    data, path,
                    QCoreApplication::translate(
                        "DataImport", "\"%1\" is a table without columns for coordinates.")
                        .arg(QFileInfo(path).fileName()));
            else if (!layers.empty())
                AddLayers(data, path, layers);
        } catch (const RunTimeError& error) {
            AddProblem(data, path, error.Description());
        }
    }
    data.tables.clear();
    return data;
}

QString SystemFor(const MapDocument& document, const FoundData& data)
{
    const QString known = document.System();
    return known.isEmpty() ? SystemToShow(PlacesOf(data)) : known;
}

const QString& SystemOf(const SourceLayer& layer)
{
    return layer.chosenSystem.isEmpty() ? layer.system : layer.chosenSystem;
}

std::vector<PlacedExtent> PlacesOf(const FoundData& data)
{
    std::vector<PlacedExtent> places;
    places.reserve(LayerCount(data));
    for (const FoundData::Source& source : data.sources) {
        for (const SourceLayer& layer : source.layers)
            places.push_back({SystemOf(layer), layer.extent});
    }
    return places;
}

SourceContents ReadFound(const FoundData& data, const QString& system, Progress& progress)
{
    std::vector<LayerSource> sources;
    sources.reserve(LayerCount(data));
    for (const FoundData::Source& source : data.sources) {
        for (const SourceLayer& layer : source.layers)
            sources.push_back(
                {qint32(sources.size()),
                 source.path,
                 layer.name,
                 {},
                 layer.chosenSystem,
                 layer.choice,
                 layer.dataKind,
                 source.server});
    }
    SourceContents contents = ReadSources(std::move(sources), system, progress);
    progress.StopIfCancelled(); // then it is not all
    return contents;
}

std::vector<qint32> AddToMap(MapDocument& document, const FoundData& data)
{
    std::vector<qint32> layerIDs;
    if (data.sources.empty())
        return layerIDs;
    Transaction transaction(document.Database());
    if (document.System().isEmpty())
        document.SetSystem(SystemFor(document, data));
    layerIDs = document.AddLayers(NewLayersFor(data, document.Sources().size()));
    const std::vector<qint32> groupIDs = document.AddGroups(TitlesOf(data), true);
    auto added = layerIDs.begin();
    for (size_t i = 0; i < data.sources.size(); ++i) {
        for (size_t left = data.sources[i].layers.size(); left > 0; --left)
            document.AddMember(groupIDs[i], *added++);
    }
    transaction.Commit();
    return layerIDs;
}

SourceContents WithIDs(const SourceContents& contents, const std::vector<qint32>& layerIDs)
{
    SourceContents named;
    for (const auto& [number, features] : contents.features)
        named.features.emplace(layerIDs.at(size_t(number)), features);
    for (const auto& [number, raster] : contents.rasters)
        named.rasters.emplace(layerIDs.at(size_t(number)), raster);
    for (const auto& [number, reason] : contents.failures)
        named.failures.emplace(layerIDs.at(size_t(number)), reason);
    return named;
}

} // namespace Orvane
