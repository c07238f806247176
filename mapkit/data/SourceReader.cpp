// SPDX-License-Identifier: MIT
#include "mapkit/data/SourceReader.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/MapRaster.h"
#include "mapkit/data/OpenSource.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/files/ReadingBound.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int MostLines = 8;

void ReadSource(
    SourceContents& contents, const LayerSource& source, const QString& mapSystem, OpenSource& open,
    Progress& progress)
{
    if (source.kind == DataKind::Raster) {
        contents.rasters[source.layerID] = std::make_shared<const MapRaster>(source, mapSystem);
        return;
    }
    auto features = IsServerTable(source.path) ? TablesOf(source).Read(source, mapSystem, progress)
                                               : open.Read(source, mapSystem, progress);
    contents.features[source.layerID] = std::make_shared<const FeatureSet>(std::move(features));
}

} // namespace

bool SourceContents::Has(qint32 layerID) const
{
    return features.contains(layerID) || rasters.contains(layerID) || failures.contains(layerID);
}

void SourceContents::Add(SourceContents other)
{
    features.merge(other.features);
    rasters.merge(other.rasters);
    failures.merge(other.failures);
}

QString SourceContents::FailureText() const
{
    QStringList lines;
    for (const auto& [layerID, reason] : failures) {
        if (!lines.contains(reason))
            lines << reason;
    }
    const qsizetype more = lines.size() - MostLines;
    if (more > 0) {
        lines.resize(MostLines);
        lines
            << QCoreApplication::translate("SourceReader", "... and %1 more.").arg(QLocale().toString(more));
    }
    return lines.join(QLatin1Char('\n'));
}

SourceContents ReadSources(std::vector<LayerSource> sources, const QString& mapSystem, Progress& progress)
{
    std::stable_sort(sources.begin(), sources.end(), [](const LayerSource& a, const LayerSource& b) {
        return a.path < b.path;
    });
    SourceContents contents;
    const ReadingBound untilCancelled(progress.CancelledFlag());
    OpenSource open;
    double done = 0;
    for (const LayerSource& source : sources) {
        try {
            progress.StopIfCancelled();
            progress.SetSubject(source.path);
            ReadSource(contents, source, mapSystem, open, progress);
        } catch (const RunTimeError& error) {
            contents.failures[source.layerID] = error.Description();
        } catch (const Cancelled&) {
            return contents;
        }
        progress.Report(++done / double(sources.size()));
    }
    return contents;
}

} // namespace Orvane
