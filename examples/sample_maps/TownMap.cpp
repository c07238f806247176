// SPDX-License-Identifier: MIT
#include "examples/sample_maps/GeoPackageWriter.h"
#include "examples/sample_maps/SampleLayers.h"
#include "examples/sample_maps/SampleMap.h"
#include "examples/sample_maps/TownPlan.h"
#include "mapkit/document/MapDocument.h"

#include <array>

namespace Orvane {

namespace {

constexpr auto TownSystem = "EPSG:32632";
constexpr auto Contours = "contours";
constexpr auto IndexContours = "index contours";
constexpr double ContourInterval = 5; // metres
constexpr double IndexInterval = 25; // metres

constexpr auto File = ""; // all layers lie in one file
constexpr double Street = 12000;
constexpr double Detail = 6000;

// Each group's layers are listed top first.
// clang-format off
constexpr auto TownLayers = std::to_array<SampleLayer>({
    {"Limits", "Town limits", File, "town limits", 0xff9c5a7a, 0, 45, -2, 3},
    {"Utilities", "Street lamps", File, "street lamps", 0xffc79a2b, 0, 20, 0, 0, 0, Detail},
    {"Utilities", "Hydrants", File, "hydrants", 0xffb5423a, 0, 21, -2, 0, 0, Detail},
    {"Utilities", "Power line", File, "power line", 0xff7d7488, 0, 48, -1},
    {"Utilities", "Masts", File, "masts", 0xff5d5568, 0, 47, -2},
    {"Transport", "Bus stops", File, "bus stops", 0xff2f6f9f, 0, 22, -4, 0, 0, 25000},
    {"Transport", "Railway stops", File, "stops", 0xff3a3a3a, 0, 23, -5},
    {"Transport", "Stations", File, "stations", 0xff5a4540, 0xff8d6f66, 59},
    {"Transport", "Railway", File, "railway", 0xff57514d, 0, 60, -2, 1},
    {"Transport", "Bridges", File, "bridges", 0xff6f675f, 0, 72, -9},
    {"Transport", "Main roads", File, "main roads", 0xfff6c866, 0, 70, -5},
    {"Transport", "Streets", File, "streets", 0xffffffff, 0, 80, -3},
    {"Transport", "Footpaths", File, "footpaths", 0xffb58f63, 0, 82, 0, 1, 0, 40000},
    {"Buildings", "Public buildings", File, "public buildings", 0xff8a5a3c, 0xffd9a37c, 90},
    {"Buildings", "Town centre", File, "town centre", 0xff97716a, 0xffcdaaa1, 91},
    {"Buildings", "Houses", File, "houses", 0xffa58d82, 0xffddcbc1, 92},
    {"Buildings", "Garages", File, "garages", 0xffb6a9a1, 0xffe4dcd6, 93, 0, 0, 0, Street},
    {"Buildings", "Industry", File, "industry", 0xff82879a, 0xffbcc0cf, 94},
    {"Cadastre", "Boundary stones", File, "boundary stones", 0xff9a8f80, 0, 30, 0, 0, 0, Detail},
    {"Cadastre", "Parcels", File, "parcels", 0xffd3c8b8, 0, 100, 0, 0, 0, 25000},
    {"Cadastre", "Blocks", File, "blocks", 0xffd8cebd, 0xfff4eee4, 150},
    {"Plants", "Trees", File, "trees", 0xff6c9a56, 0, 40, -1, 0, 0, Street},
    {"Plants", "Playgrounds", File, "playgrounds", 0xffd07b3f, 0, 24, -4, 0, 0, 25000},
    {"Plants", "Parks", File, "parks", 0xff9dbd84, 0xffd0e5bd, 160},
    {"Plants", "Cemetery", File, "cemetery", 0xff93ab86, 0xffc9dac0, 160},
    {"Plants", "Orchards", File, "orchards", 0xffb3c690, 0xffe2ebc8, 170},
    {"Plants", "Forest", File, "forest", 0xffb6d0a4, 0xffb6d0a4, 171},
    {"Plants", "Meadows", File, "meadows", 0xffe2edd2, 0xffe2edd2, 172},
    {"Plants", "Fields", File, "fields", 0xffe3d9b9, 0xfff3ecd3, 173},
    {"Water", "Ponds", File, "ponds", 0xff7fb0cc, 0xffb9dbea, 140},
    {"Water", "Streams", File, "streams", 0xff7fb4d2, 0, 141, -2},
    {"Water", "River", File, "river", 0xff7fb0cc, 0xffb9dbea, 142},
    {"Water", "Lake", File, "lake", 0xff7fb0cc, 0xffb9dbea, 143},
    {"Terrain", "Index contours", File, IndexContours, 0xffc2a684, 0, 110},
    {"Terrain", "Contours", File, Contours, 0xffdccab0, 0, 112, 0, 0, 0, 40000},
    {"Terrain", "Ground", File, "map sheet", 0xffcfc6b6, 0xfffaf7f1, 250},
});
// clang-format on

void WriteTown(const QString& path)
{
    const TownPlan plan = PlanTown();
    GeoPackageWriter writer(path, QLatin1String(TownSystem));
    for (const auto& [name, features] : plan.layers)
        writer.AddLayer(QString::fromStdString(name), features);
    writer.AddContours(QLatin1String(Contours), plan.heights, ContourInterval);
    writer.AddContours(QLatin1String(IndexContours), plan.heights, IndexInterval);
}

} // namespace

void MakeTownMap(const QString& mapPath)
{
    const QString data = GeneratedDataPath(mapPath);
    WriteTown(data);
    const auto document = MapDocument::Create(mapPath);
    document->SetSystem(QLatin1String(TownSystem));
    AddSampleLayers(*document, TownLayers, [&](const QString&) -> const QString& { return data; });
}

} // namespace Orvane
