// SPDX-License-Identifier: MIT
#include "shell/command/ImportCommand.h"

#include "mapkit/UnmeasurableFile.h"
#include "mapkit/UnnamedFile.h"
#include "shell/command/CommandFixture.h"
#include "support/FileSizeLimit.h"

#include <QDir>

namespace Orvane {

using namespace Testing;

namespace {

class ImportCommandTest : public CommandFixture
{
protected:
    size_t LayersOf(const QString& map) const { return MapDocument::Open(map)->Sources().size(); }
    const QString m_map = m_folder.Path("map.orvane");
};

} // namespace

TEST_F(ImportCommandTest, AMapIsMadeOfDataFiles)
{
    EXPECT_EQ(
        Run(
            {"import", m_folder.WriteSquare("a.geojson"), m_folder.WriteSquare("b.geojson", 20), "--to",
             m_map}),
        ExitCode::Done);
    EXPECT_EQ(LayersOf(m_map), 2u);
    EXPECT_TRUE(m_out.contains("map.orvane"));
    EXPECT_TRUE(m_errors.isEmpty()) << m_errors.toStdString();
}

TEST_F(ImportCommandTest, AnExistingMapGrows)
{
    MakeMap("map.orvane");
    EXPECT_EQ(Run({"import", "--to", m_map, m_folder.WriteSquare("a.geojson")}), ExitCode::Done);
    EXPECT_EQ(LayersOf(m_map), 2u);
}

TEST_F(ImportCommandTest, AFolderStandsForTheDataInIt)
{
    QDir(m_folder.Path("")).mkdir("data");
    m_folder.WriteSquare("data/a.geojson");
    m_folder.WriteSquare("data/b.geojson");
    m_folder.Write("data/notes.txt", "no data");
    EXPECT_EQ(Run({"import", m_folder.Path("data"), "--to", m_map}), ExitCode::Done)
        << m_errors.toStdString();
    EXPECT_EQ(LayersOf(m_map), 2u);
}

TEST_F(ImportCommandTest, TheColumnsOfATableAreGuessedAndTold)
{
    const QString towns = m_folder.Write("towns.csv", "name,Lon,Lat\nA,13,52\n");
    EXPECT_EQ(Run({"import", towns, "--to", m_map}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_TRUE(m_out.contains("towns.csv") && m_out.contains("Lon, Lat")) << m_out.toStdString();
    EXPECT_EQ(MapDocument::Open(m_map)->Sources().at(0).choice.columns.y, "Lat");
}

TEST_F(ImportCommandTest, TheColumnsOfATableAreNamed)
{
    const QString towns = m_folder.Write("towns.csv", "lon,lat,a,b,g\n13,52,1,2,POINT (1 2)\n");
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--columns", "a,b"}), ExitCode::Done);
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--wkt", "g"}), ExitCode::Done);
    const auto sources = MapDocument::Open(m_map)->Sources();
    ASSERT_EQ(sources.size(), 2u);
    EXPECT_EQ(sources[0].choice.columns, (CoordinateColumns{"a", "b", {}}));
    EXPECT_EQ(sources[1].choice.columns, (CoordinateColumns{{}, {}, "g"}));
}

TEST_F(ImportCommandTest, ATableWithoutTheNamedColumnsIsTold)
{
    const QString towns = m_folder.Write("towns.csv", "lon,lat\n13,52\n");
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--columns", "a,b"}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("towns.csv")) << m_errors.toStdString();
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--columns", "a"}), ExitCode::Usage);
}

TEST_F(ImportCommandTest, ColumnsAreFoundInAnyCaseIfNoneIsExactlyNamed)
{
    const QString towns = m_folder.Write("towns.csv", "LON,Lat,lat,GEOM\n13,52,53,POINT (1 2)\n");
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--columns", "lon,lat"}), ExitCode::Done);
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--wkt", "geom"}), ExitCode::Done);
    const auto sources = MapDocument::Open(m_map)->Sources();
    EXPECT_EQ(sources.at(0).choice.columns, (CoordinateColumns{"LON", "lat", {}}));
    EXPECT_EQ(sources.at(1).choice.columns, (CoordinateColumns{{}, {}, "GEOM"}));
}

TEST_F(ImportCommandTest, AMissingColumnIsNamedWithThoseThatThereAre)
{
    const QString towns = m_folder.Write("towns.csv", "lon,lat,name\n13,52,A\n");
    EXPECT_EQ(Run({"import", towns, "--to", m_map, "--columns", "lon,height"}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("\"height\"")) << qPrintable(m_errors);
    EXPECT_TRUE(m_errors.contains("lon, lat, name")) << qPrintable(m_errors);
    EXPECT_EQ(m_errors.count("towns.csv"), 1) << qPrintable(m_errors);
}

TEST_F(ImportCommandTest, FilesOfOneNameAreToldWithTheirFolders)
{
    for (const char* folder : {"north", "south"})
        QDir(m_folder.Path("")).mkdir(folder);
    const QStringList bad = {m_folder.Write("north/bad.shp", "x"), m_folder.Write("south/bad.shp", "x")};
    const QStringList plans
        = {WriteUnnamed(m_folder.Path("north/plan.shp"), {500000, 5500000, 510000, 5510000}),
           WriteUnnamed(m_folder.Path("south/plan.shp"), {500000, 5500000, 510000, 5510000})};
    EXPECT_EQ(Run(QStringList("import") + bad + plans + QStringList({"--to", m_map})), ExitCode::Problems);
    for (const QString& path : bad)
        EXPECT_TRUE(m_errors.contains(path)) << qPrintable(m_errors);
    for (const QString& path : plans)
        EXPECT_TRUE(m_out.contains(path)) << qPrintable(m_out);
}

TEST_F(ImportCommandTest, WhatCannotBeReadIsToldAndTheRestIsAdded)
{
    EXPECT_EQ(
        Run({"import", m_folder.Write("bad.shp", "x"), m_folder.WriteSquare("a.geojson"), "--to", m_map}),
        ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("bad.shp"));
    EXPECT_EQ(LayersOf(m_map), 1u);
}

TEST_F(ImportCommandTest, WithNothingToImportNoMapIsMade)
{
    EXPECT_EQ(Run({"import", m_folder.Path("none.shp"), "--to", m_map}), ExitCode::Problems);
    EXPECT_FALSE(QFile::exists(m_map));
}

TEST_F(ImportCommandTest, WithoutRoomNoMapIsMade)
{
    const QString data = m_folder.WriteSquare("a.geojson");
    for (const qint64 room : {0, 20000, 40000}) {
        int code = ExitCode::Done;
        {
            const FileSizeLimit limit(room);
            code = Run({"import", data, "--to", m_map});
        }
        EXPECT_EQ(code, ExitCode::Problems) << room;
        EXPECT_TRUE(m_errors.contains("map.orvane")) << m_errors.toStdString();
        EXPECT_EQ(QDir(m_folder.Path("")).entryList({"map*"}), QStringList()) << room;
    }
}

TEST_F(ImportCommandTest, WithoutRoomAMapThatIsThereKeepsItsLayers)
{
    MakeMap("map.orvane");
    const QString data = m_folder.WriteSquare("a.geojson");
    for (const qint64 room : {1000, 34000}) {
        const FileSizeLimit limit(room);
        EXPECT_EQ(Run({"import", data, "--to", m_map}), ExitCode::Problems) << room;
    }
    EXPECT_EQ(LayersOf(m_map), 1u);
}

TEST_F(ImportCommandTest, AFileThatIsNoMapIsLeftAlone)
{
    const QString text = m_folder.Write("text.orvane", "no map");
    EXPECT_EQ(Run({"import", m_folder.WriteSquare("a.geojson"), "--to", text}), ExitCode::Problems);
    EXPECT_EQ(Content(text), "no map");
}

TEST_F(ImportCommandTest, WhatIsAssumedAboutDataWithoutASystemIsTold)
{
    const QString data = WriteUnnamed(m_folder.Path("places.shp"), {5, 45, 15, 55});
    EXPECT_EQ(Run({"import", data, "--to", m_map}), ExitCode::Done);
    EXPECT_TRUE(m_out.contains("places.shp")) << qPrintable(m_out);
    EXPECT_TRUE(m_out.contains("EPSG:4326")) << qPrintable(m_out);
    EXPECT_EQ(MapDocument::Open(m_map)->Sources().at(0).system, "EPSG:4326");
}

TEST_F(ImportCommandTest, DataOfUnknownPlaceAreAddedAndReportedAsAProblem)
{
    const QString data = WriteUnnamed(m_folder.Path("plan.shp"), {500000, 5500000, 510000, 5510000});
    EXPECT_EQ(Run({"import", data, "--to", m_map}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("plan.shp")) << qPrintable(m_out);
    EXPECT_TRUE(m_errors.contains("--crs")) << qPrintable(m_errors);
    EXPECT_EQ(LayersOf(m_map), 1u);
    EXPECT_EQ(MapDocument::Open(m_map)->System(), "");
}

TEST_F(ImportCommandTest, DataThatCannotBeReadToTheEndAreReported)
{
    const QString data = WriteUnmeasurable(m_folder.Path("view.gpkg"));
    EXPECT_EQ(Run({"import", data, "--to", m_map}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("view.gpkg")) << qPrintable(m_out);
    EXPECT_FALSE(m_errors.contains("--crs")) << qPrintable(m_errors);
}

TEST_F(ImportCommandTest, ASystemCanBeGivenForDataThatNameNone)
{
    const QString plan = WriteUnnamed(m_folder.Path("plan.shp"), {500000, 5500000, 510000, 5510000});
    const QString named = m_folder.WriteSquare("a.geojson", 8, 49);
    EXPECT_EQ(Run({"import", named, plan, "--crs", "EPSG:25832", "--to", m_map}), ExitCode::Done);
    const auto map = MapDocument::Open(m_map);
    EXPECT_EQ(map->Sources().at(0).system, "");
    EXPECT_EQ(map->Sources().at(1).system, "EPSG:25832");
}

TEST_F(ImportCommandTest, TheMapsSystemCanBeGiven)
{
    const QString data = m_folder.WriteSquare("a.geojson");
    EXPECT_EQ(Run({"import", data, "--map-crs", "EPSG:25832", "--to", m_map}), ExitCode::Done);
    EXPECT_EQ(MapDocument::Open(m_map)->System(), "EPSG:25832");
    EXPECT_EQ(Run({"import", data, "--map-crs", "EPSG:3035", "--to", m_map}), ExitCode::Done);
    EXPECT_EQ(MapDocument::Open(m_map)->System(), "EPSG:3035");
}

TEST_F(ImportCommandTest, AnUnknownSystemIsAMistake)
{
    const QString data = m_folder.WriteSquare("a.geojson");
    for (const char* option : {"--crs", "--map-crs"}) {
        EXPECT_EQ(Run({"import", data, option, "EPSG:0", "--to", m_map}), ExitCode::Usage) << option;
        EXPECT_TRUE(m_errors.contains("EPSG:0")) << qPrintable(m_errors);
        EXPECT_TRUE(m_errors.contains(option)) << qPrintable(m_errors);
        EXPECT_EQ(Run({"import", data, option, "", "--to", m_map}), ExitCode::Usage) << option;
    }
    EXPECT_FALSE(QFile::exists(m_map));
}

} // namespace Orvane
