// SPDX-License-Identifier: MIT
#include "mapkit/data/DataFiles.h"

#include "mapkit/DataFolder.h"

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

TEST(DataFiles, AFolderThatIsNotThereHasNone)
{
    const DataFolder folder;
    EXPECT_TRUE(DataFiles::In(folder.Path("nowhere")).isEmpty());
}

} // namespace Orvane
