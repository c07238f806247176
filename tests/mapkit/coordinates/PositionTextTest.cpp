// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/PositionText.h"

#include "messages/CatalogueTranslator.h"
#include "support/LinguistFile.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

TEST(PositionText, WritesDegreesOfAProjectedMap)
{
    EXPECT_EQ(PositionText("EPSG:32632").Of({500000, 0}), "0.0000° N, 9.0000° E");
}

TEST(PositionText, NamesTheHemispheres)
{
    const PositionText degrees("EPSG:4326");
    EXPECT_EQ(degrees.Of({-11.5, 48.25}), "48.2500° N, 11.5000° W");
    EXPECT_EQ(degrees.Of({11.5, -48.25}), "48.2500° S, 11.5000° E");
}

TEST(PositionText, OrdersTheirPartsAsTheLanguageDoes)
{
    CatalogueTranslator japanese(MessageCatalogue::FromFile(SourcePath("translations/orvane.ja.ts")));
    QCoreApplication::installTranslator(&japanese);
    const QString shown = PositionText("EPSG:4326").Of({-11.5, 48.25});
    QCoreApplication::removeTranslator(&japanese);
    EXPECT_EQ(shown, QString("北緯48.2500°、西経11.5000°"));
}

TEST(PositionText, IsEmptyOffTheEarth)
{
    EXPECT_EQ(PositionText("EPSG:4326").Of({200, 0}), "");
    EXPECT_EQ(PositionText("EPSG:8857").Of({1e9, 1e9}), "");
}

TEST(PositionText, WritesMapUnitsWhereTheSystemIsNotKnown)
{
    EXPECT_EQ(PositionText("").Of({1.5, 2.25}), "1.50  2.25");
}

TEST(PositionText, GivesTheDegreesOfAPoint)
{
    EXPECT_EQ(PositionText("EPSG:4326").DegreesOf({11.5, 48.25}), QPointF(11.5, 48.25));
    const auto munich = PositionText("EPSG:3857").DegreesOf({1288576.17, 6129702.78});
    ASSERT_TRUE(munich);
    EXPECT_NEAR(munich->x(), 11.5755, 1e-4);
    EXPECT_NEAR(munich->y(), 48.1372, 1e-4);
    EXPECT_FALSE(PositionText("EPSG:4326").DegreesOf({200, 0}));
    EXPECT_FALSE(PositionText("").DegreesOf({1, 2}));
}

} // namespace Orvane
