// SPDX-License-Identifier: MIT
#include "mapkit/files/DataFiles.h"

#include "mapkit/DataFolder.h"

#include <QDir>

namespace Orvane {

using namespace Testing;

TEST(DataFiles, AFoldersDataFilesAreFoundWithoutTheirCompanions)
{
    const DataFolder folder;
    for (const char* name : {"b.shp", "b.dbf", "b.shx", "A.GPKG", "readme.txt", "c.geojson"})
        folder.Write(name, "x");
    EXPECT_EQ(
        DataFiles::In(folder.Path("")),
        QStringList({folder.Path("A.GPKG"), folder.Path("b.shp"), folder.Path("c.geojson")}));
}

TEST(DataFiles, FoldersWithinAFolderAreLookedThroughAndHiddenOnesAreNot)
{
    const DataFolder folder;
    for (const char* name : {"a/b", "town.gdb", ".trash"})
        QDir(folder.Path("")).mkpath(name);
    for (const char* name : {"a/b/c.shp", "town.gdb/a.gdbtable", "town.gdb/x.json", ".trash/d.shp", "e.zip"})
        folder.Write(name, "x");
    EXPECT_EQ(
        DataFiles::In(folder.Path("")),
        QStringList({folder.Path("a/b/c.shp"), folder.Path("e.zip"), folder.Path("town.gdb")}));
}

TEST(DataFiles, TheFilesOfOneSourceStandForIt)
{
    const DataFolder folder;
    QDir(folder.Path("")).mkpath("town.gdb");
    for (const char* name : {"a.shp", "a.dbf", "a.prj", "b.dbf", "town.gdb/a.gdbtable"})
        folder.Write(name, "x");
    EXPECT_EQ(
        DataFiles::Meant(
            {folder.Path("a.dbf"), folder.Path("a.shp"), folder.Path("a.prj"), folder.Path("b.dbf"),
             folder.Path("town.gdb/a.gdbtable")}),
        QStringList({folder.Path("a.shp"), folder.Path("b.dbf"), folder.Path("town.gdb")}));
}

TEST(DataFiles, TheFilesOfAShapefileInCapitalsAreTheShapefile)
{
    const DataFolder folder;
    for (const char* name : {"ROADS.SHP", "ROADS.DBF", "ROADS.PRJ"})
        folder.Write(name, "");
    EXPECT_EQ(
        DataFiles::Meant({folder.Path("ROADS.DBF"), folder.Path("ROADS.SHP"), folder.Path("ROADS.PRJ")}),
        QStringList(folder.Path("ROADS.SHP")));
}

TEST(DataFiles, TheFilesOfARasterStandForIt)
{
    const DataFolder folder;
    for (const char* name : {"a.tif", "a.tfw", "a.tif.aux.xml", "a.tif.ovr", "a.prj", "b.PNG", "b.pgw"})
        folder.Write(name, "x");
    QStringList chosen;
    for (const char* name : {"a.tfw", "a.tif.aux.xml", "a.tif.ovr", "a.prj", "b.pgw"})
        chosen << folder.Path(name);
    EXPECT_EQ(DataFiles::Meant(chosen), QStringList({folder.Path("a.tif"), folder.Path("b.PNG")}));
}

TEST(DataFiles, RastersInAFolderAreFoundAndPicturesWithAPlaceBesideThem)
{
    const DataFolder folder;
    for (const char* name : {"a.tif", "b.ASC", "c.png", "c.pgw", "d.jpg", "d.jpg.aux.xml", "e.jpg", "f.png"})
        folder.Write(name, "x");
    EXPECT_EQ(
        DataFiles::In(folder.Path("")),
        QStringList(
            {folder.Path("a.tif"), folder.Path("b.ASC"), folder.Path("c.png"), folder.Path("d.jpg")}));
    EXPECT_TRUE(DataFiles::IsNamedAsRaster("e.jpg"));
    EXPECT_FALSE(DataFiles::IsRaster(folder.Path("e.jpg")));
    EXPECT_TRUE(DataFiles::RasterPatterns().startsWith("*.tif ")) << qPrintable(DataFiles::RasterPatterns());
}

TEST(DataFiles, AFolderWithoutKnownFilesIsMeantItself)
{
    const DataFolder folder;
    QDir(folder.Path("")).mkpath("coverage");
    folder.Write("coverage/arc.adf", "x");
    EXPECT_EQ(DataFiles::Meant({folder.Path("coverage")}), QStringList(folder.Path("coverage")));
}

TEST(DataFiles, AFolderThatIsNotThereHasNone)
{
    const DataFolder folder;
    EXPECT_TRUE(DataFiles::In(folder.Path("nowhere")).isEmpty());
}

} // namespace Orvane
