// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/CoordinateSystems.h"

#include <gtest/gtest.h>
#include <ogr_spatialref.h>

namespace Orvane {

namespace {

OGRSpatialReference Known(const char* text)
{
    OGRSpatialReference system;
    EXPECT_EQ(system.SetFromUserInput(text), OGRERR_NONE);
    return system;
}

} // namespace

TEST(CoordinateSystems, AUnitIsAMetreAFootOrADegree)
{
    EXPECT_EQ(MetresPerUnit("EPSG:32632"), 1);
    EXPECT_NEAR(MetresPerUnit("EPSG:2263"), 0.3048, 1e-5);
    EXPECT_NEAR(MetresPerUnit("EPSG:4326"), 111319.49, 0.01);
}

TEST(CoordinateSystems, ATextThatIsNoSystemCountsAsMetres)
{
    EXPECT_EQ(MetresPerUnit(""), 1);
    EXPECT_EQ(MetresPerUnit("no system"), 1);
}

TEST(CoordinateSystems, ProjectedDataAreShownAsTheyAre)
{
    EXPECT_EQ(SystemToShow("EPSG:32632", Box{0, 0, 1e6, 1e6}), "EPSG:32632");
}

TEST(CoordinateSystems, DegreesAreShownInAProjectionThatSuitsTheirExtent)
{
    EXPECT_EQ(SystemToShow("EPSG:4326", Box{-180, -90, 180, 90}), "EPSG:8857");
    EXPECT_EQ(SystemToShow("EPSG:4326", Box{5, 45, 15, 55}), "EPSG:3857");
    EXPECT_EQ(SystemToShow("EPSG:4326", Box()), "EPSG:3857");
}

TEST(CoordinateSystems, TheLargestDataDecideForAllWhateverTheirOrder)
{
    const PlacedExtent town{"EPSG:32632", {500000, 5500000, 510000, 5510000}};
    const PlacedExtent world{"EPSG:4326", {-180, -90, 180, 84}};
    const PlacedExtent unknown{"", {0, 0, 1e6, 1e6}};
    EXPECT_EQ(SystemToShow({town, world}), "EPSG:8857");
    EXPECT_EQ(SystemToShow({unknown, world, town}), "EPSG:8857");
    EXPECT_EQ(SystemToShow({unknown, town}), "EPSG:32632");
    EXPECT_EQ(SystemToShow({unknown}), "");
    EXPECT_EQ(SystemToShow(std::vector<PlacedExtent>()), "");
}

TEST(CoordinateSystems, DataAcrossTheDateLineCountByTheirArea)
{
    const PlacedExtent islands{"EPSG:3832", {2000000, -3000000, 5000000, 0}};
    const PlacedExtent town{"EPSG:32632", {500000, 5500000, 510000, 5510000}};
    EXPECT_EQ(SystemToShow({town, islands}), "EPSG:8857") << "together they go round the world";
    EXPECT_EQ(SystemToShow({{"EPSG:2193", {1700000, 5400000, 1800000, 5500000}}, islands}), "EPSG:3832");
}

TEST(CoordinateSystems, DataThatTogetherGoRoundTheWorldAreShownInItsProjection)
{
    EXPECT_EQ(
        SystemToShow({{"EPSG:4326", {-120, 30, -80, 50}}, {"EPSG:4326", {130, 30, 145, 45}}}), "EPSG:8857");
}

TEST(CoordinateSystems, ALocalSystemNamesNoPlace)
{
    const OGRSpatialReference local = Known("LOCAL_CS[\"Undefined\",UNIT[\"metre\",1]]");
    EXPECT_EQ(SystemText(&local), "");
}

TEST(CoordinateSystems, ASystemIsWrittenShortWhereItHasACode)
{
    const OGRSpatialReference utm = Known("EPSG:32632");
    EXPECT_EQ(SystemText(&utm), "EPSG:32632");
    EXPECT_EQ(SystemText(nullptr), "");
    const OGRSpatialReference own = Known("+proj=aeqd +lat_0=10 +lon_0=20 +datum=WGS84");
    EXPECT_TRUE(SystemText(&own).startsWith("PROJCS"));
}

TEST(CoordinateSystems, TransformsEastFirstWhateverTheAuthoritySays)
{
    const OGRSpatialReference degrees = Known("EPSG:4326");
    const auto transformation = TransformationTo("EPSG:3857", &degrees);
    ASSERT_TRUE(transformation);
    double x = 10, y = 0;
    EXPECT_TRUE(transformation->Transform(1, &x, &y));
    EXPECT_NEAR(x, 1113194.9, 0.1);
    EXPECT_NEAR(y, 0, 1e-6);
}

TEST(CoordinateSystems, NothingIsTransformedBetweenEqualOrUnknownSystems)
{
    const OGRSpatialReference degrees = Known("EPSG:4326");
    EXPECT_FALSE(TransformationTo("EPSG:4326", &degrees));
    EXPECT_FALSE(TransformationTo("", &degrees));
    EXPECT_FALSE(TransformationTo("EPSG:4326", nullptr));
    const OGRSpatialReference empty;
    EXPECT_FALSE(TransformationTo("EPSG:4326", &empty));
}

} // namespace Orvane
