// SPDX-License-Identifier: MIT
// Rasters in tables of a GeoPackage.
#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/data/RasterSource.h"
#include "mapkit/files/OpenedData.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr QRgb Dark = qRgb(50, 50, 50);
constexpr QRgb Light = qRgb(150, 150, 150);

class RasterTablesTest : public testing::Test
{
protected:
    RasterTablesTest() { WriteRasterTable(m_path, "west", 50); }

    QRgb Drawn(const QString& table) const
    {
        const std::atomic<bool> cancelled = false;
        return RasterSource(m_path, table).Draw("EPSG:4326", {0, 0, 10, 10}, {10, 10}, cancelled).pixel(5, 5);
    }

    const DataFolder m_folder;
    const QString m_path = m_folder.Path("photo.gpkg");
};

} // namespace

TEST_F(RasterTablesTest, TheOnlyOneHasItsNameToo)
{
    EXPECT_EQ(RastersWithin(m_path), QStringList("west"));
    EXPECT_EQ(Drawn("west"), Dark);
}

TEST_F(RasterTablesTest, WithoutANameTheOldestOneIsMeant)
{
    EXPECT_EQ(Drawn({}), Dark);
    WriteRasterTable(m_path, "east", 150);
    EXPECT_EQ(RastersWithin(m_path), QStringList({"west", "east"}));
    EXPECT_EQ(Drawn({}), Dark);
    EXPECT_EQ(Drawn("east"), Light);
}

} // namespace Orvane
