// SPDX-License-Identifier: MIT
#include "component/model/ListedName.h"

#include "hosts/ValueMatchers.h"

#include <gtest/gtest.h>

using namespace Orvane;

TEST(DecorateLayerName, LeavesANameWithoutMarkers)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("Roads (main)")), "Roads (main)");
    EXPECT_EQ(DecorateLayerName(QString()), "");
}

TEST(DecorateLayerName, MovesWhatFollowsTheMarkerToTheFront)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("Roads (Obscured)")), "(OBS)Roads ");
    EXPECT_EQ(DecorateLayerName(QStringLiteral("(Obscured)Roads")), "Roads(OBS)");
    EXPECT_EQ(DecorateLayerName(QStringLiteral("Main (Obscured)Roads")), "Roads(OBS)Main ");
}

TEST(DecorateLayerName, DoesTheSameWithTheSuppressedMarker)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("Roads (Suppressed)")), "(SUP)Roads ");
    EXPECT_EQ(DecorateLayerName(QStringLiteral("(Suppressed)Roads")), "Roads(SUP)");
}

TEST(DecorateLayerName, FindsMarkersInAnyCase)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("A(oBsCuReD)B")), "B(OBS)A");
}

TEST(DecorateLayerName, ShortensTheObscuredMarkerFirstAndTheOtherInItsResult)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("a(obscured)b(suppressed)c")), "c(OBS)a(SUP)b");
    EXPECT_EQ(DecorateLayerName(QStringLiteral("a(suppressed)b(obscured)c")), "b(SUP)c(OBS)a");
}

TEST(DecorateLayerName, ShortensTheFirstOfSeveralOnly)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("a(Obscured)b(Obscured)")), "b(Obscured)(OBS)a");
}

TEST(DecorateLayerName, KeepsCharactersBeyondLatin)
{
    EXPECT_EQ(DecorateLayerName(QStringLiteral("Straße (Obscured)道路")), "道路(OBS)Straße ");
}
