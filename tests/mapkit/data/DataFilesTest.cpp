// SPDX-License-Identifier: MIT
#include "mapkit/data/DataFiles.h"

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
