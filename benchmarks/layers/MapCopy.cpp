// SPDX-License-Identifier: MIT
#include "benchmarks/layers/MapCopy.h"

#include "benchmarks/layers/BenchmarkMap.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <QFile>

#include <map>
#include <memory>

namespace Orvane::Benchmarks {

namespace {

void AddSchemes(const QString& path)
{
    const auto database = SqliteLayerDatabase::Open(path);
    LayerSchemes schemes(*database);
    schemes.Create(SecondScheme);
    database->Execute(QStringLiteral("UPDATE Layers SET Color = Color + 1"));
    schemes.Create(FirstScheme);
}

} // namespace

MapCopy::MapCopy(const QString& original)
{
    if (!QFile::copy(original, Path()))
        qFatal("the map cannot be copied");
}

QString MapWithSchemes(int layerCount)
{
    static std::map<int, std::unique_ptr<MapCopy>> maps;
    std::unique_ptr<MapCopy>& map = maps[layerCount];
    if (!map) {
        map = std::make_unique<MapCopy>(BenchmarkMap(layerCount));
        AddSchemes(map->Path());
    }
    return map->Path();
}

} // namespace Orvane::Benchmarks
