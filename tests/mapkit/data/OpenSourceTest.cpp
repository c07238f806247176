// SPDX-License-Identifier: MIT
#include "mapkit/data/OpenSource.h"

#include "mapkit/DataFolder.h"
#include "mapkit/data/DataSource.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

using Testing::DataFolder;

TEST(OpenSource, AFileIsOpenedOnceForAllItsLayers)
{
    const DataFolder folder;
    const QString path = folder.WriteSquare("a.geojson");
    OpenSource open;
    const DataSource* first = &open.At(path);
    QFile::remove(path);
    EXPECT_EQ(&open.At(path), first);
    EXPECT_TRUE(open.At(path).Has("a"));
}

TEST(OpenSource, AnotherFileIsOpenedInItsPlace)
{
    const DataFolder folder;
    const QString path = folder.WriteSquare("a.geojson");
    OpenSource open;
    EXPECT_TRUE(open.At(path).Has("a"));
    EXPECT_TRUE(open.At(folder.WriteSquare("b.geojson")).Has("b"));
    QFile::remove(path);
    EXPECT_THROW(open.At(path), RunTimeError);
}

} // namespace Orvane
