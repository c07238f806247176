// SPDX-License-Identifier: MIT
#include "examples/sample_maps/SampleMap.h"

#include "mapkit/document/MapDocument.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

constexpr auto WorldData = "world_map.gpkg";

} // namespace

QString GeneratedDataPath(const QString& mapPath)
{
    const QFileInfo map(mapPath);
    return map.absoluteDir().filePath(map.completeBaseName() + QLatin1String(".gpkg"));
}

void MakeSampleMap(const QString& mapPath, const QString& dataFolder)
{
    const QString path = QFileInfo(mapPath).absoluteFilePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    MapDocument::Remove(path);
    if (!dataFolder.isEmpty() && QDir(dataFolder).exists(QLatin1String(WorldData)))
        MakeWorldMap(path, QDir(dataFolder).absolutePath());
    else
        MakeTownMap(path);
}

} // namespace Orvane
