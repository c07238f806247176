// SPDX-License-Identifier: MIT
#include "shell/map/FoundLayers.h"

#include "mapkit/data/ServerTables.h"
#include "mapkit/files/DataFiles.h"
#include "mapkit/files/OpenedData.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace Orvane {

namespace {

constexpr auto AllKinds = {FeatureKind::Point, FeatureKind::Line, FeatureKind::Area};

bool IsShownByAnother(const SourceLayer& layer, const std::vector<SourceLayer>& layers)
{
    return std::any_of(layers.begin(), layers.end(), [&](const SourceLayer& other) {
        return !layer.partsOf.isEmpty() && !other.isEmpty && other.name == layer.partsOf;
    });
}

// The lowest part also shows the kinds that were not found, because only some features were looked at.
std::vector<SourceLayer> PartsOf(const SourceLayer& layer)
{
    std::vector<SourceLayer> parts;
    parts.reserve(layer.kinds.size());
    for (const FeatureKind kind : layer.kinds) {
        SourceLayer& part = parts.emplace_back(layer);
        part.kind = kind;
        part.choice.kinds = {kind};
    }
    for (const FeatureKind kind : AllKinds) {
        if (std::find(layer.kinds.begin(), layer.kinds.end(), kind) == layer.kinds.end())
            parts.back().choice.kinds.push_back(kind);
    }
    return parts;
}

} // namespace

std::vector<SourceLayer> LayersToShow(const std::vector<SourceLayer>& layers)
{
    std::vector<SourceLayer> shown;
    for (const SourceLayer& layer : layers) {
        if (layer.isEmpty || IsShownByAnother(layer, layers))
            continue;
        const std::vector<SourceLayer> parts
            = layer.kinds.size() > 1 ? PartsOf(layer) : std::vector<SourceLayer>{layer};
        shown.insert(shown.end(), parts.begin(), parts.end());
    }
    return shown;
}

QString LayerTitle(const QString& path, const SourceLayer& layer)
{
    const bool isNameless = layer.name.isEmpty() || OpenedData::IsNameless(layer.name);
    QString name = isNameless ? SourceTitle(path) : layer.name;
    if (layer.dataKind == DataKind::Raster)
        return isNameless || DataFiles::MayHoldBoth(path) ? name : SourceTitle(layer.name);
    if (layer.choice.kinds.empty())
        return name;
    switch (layer.kind) {
    case FeatureKind::Point:
        return QCoreApplication::translate("DataImport", "%1 (points)").arg(name);
    case FeatureKind::Line:
        return QCoreApplication::translate("DataImport", "%1 (lines)").arg(name);
    case FeatureKind::Area:
        break;
    }
    return QCoreApplication::translate("DataImport", "%1 (areas)").arg(name);
}

QString SourceTitle(const QString& path)
{
    if (IsServerTable(path))
        return QCoreApplication::translate("DataImport", "Tables on the server");
    const QFileInfo file(path);
    const bool isCompressed = file.suffix().compare(QLatin1String("gz"), Qt::CaseInsensitive) == 0;
    return isCompressed ? QFileInfo(file.completeBaseName()).completeBaseName() : file.completeBaseName();
}

} // namespace Orvane
