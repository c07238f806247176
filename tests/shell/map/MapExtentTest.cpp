// SPDX-License-Identifier: MIT
#include "shell/map/MapExtent.h"

#include "mapkit/DataFolder.h"
#include "mapkit/UnnamedFile.h"
#include "mapkit/common/Progress.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapExtentTest : public testing::Test
{
protected:
    Box Extent(const std::vector<LayerSource>& sources)
    {
        return ExtentOfMap(sources, "EPSG:4326", m_progress);
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(MapExtentTest, IsThatOfAllLayers)
{
    const LayerSource one{1, m_folder.WriteSquare("a.geojson"), "a", {}};
    const LayerSource other{2, m_folder.WriteSquare("b.geojson", 20, 30), "b", {}};
    EXPECT_EQ(Extent({one, other}), (Box{0, 0, 30, 40}));
    EXPECT_TRUE(Extent({}).IsEmpty());
}

TEST_F(MapExtentTest, EachLayerHasItsOwnSystem)
{
    const QString path = WriteUnnamed(m_folder.Path("plan.shp"), {0, 0, 10, 10});
    const LayerSource degrees{1, path, "plan", {}, "EPSG:4326"};
    const LayerSource metres{2, path, "plan", {}, "EPSG:3857"};
    EXPECT_EQ(Extent({degrees, metres}).maxX, 10);
    EXPECT_EQ(Extent({metres, degrees}).maxX, 10);
}

TEST_F(MapExtentTest, EachLayerOfATableHasItsOwnColumns)
{
    const QString path = m_folder.Write("trips.csv", "lon,lat,toX,toY\n1,2,30,40\n3,4,31,41\n");
    LayerSource from{1, path, "trips", {}, "EPSG:4326"};
    from.choice.columns = {"lon", "lat", {}};
    LayerSource to{2, path, "trips", {}, "EPSG:4326"};
    to.choice.columns = {"toX", "toY", {}};
    EXPECT_EQ(Extent({from, to}), (Box{1, 2, 31, 41}));
    EXPECT_EQ(Extent({to}), (Box{30, 40, 31, 41}));
}

TEST_F(MapExtentTest, LayersThatCannotBeReadAreLeftOut)
{
    const QString path = m_folder.WriteSquare("a.geojson");
    const LayerSource there{1, path, "a", {}};
    const LayerSource lost{2, path, "b", {}};
    const LayerSource gone{3, m_folder.Path("gone.geojson"), "gone", {}};
    EXPECT_EQ(Extent({lost, gone, there}), (Box{0, 0, 10, 10}));
}

TEST_F(MapExtentTest, ACancelledReadingEnds)
{
    m_progress.Cancel();
    EXPECT_THROW(Extent({{1, m_folder.WriteSquare("a.geojson"), "a", {}}}), Cancelled);
}

} // namespace Orvane
