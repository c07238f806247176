// SPDX-License-Identifier: MIT
#include "shell/map/LayerStates.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

// Shown from 1:1000 to 1:5000.
MapLayer Layer(qint32 layerID)
{
    MapLayer layer;
    layer.layerID = layerID;
    layer.minDenominator = 1000;
    layer.maxDenominator = 5000;
    return layer;
}

} // namespace

TEST(LayerStates, ALayerWithinItsScalesHasItsPlainName)
{
    LayerStates states;
    EXPECT_TRUE(states.Update({Layer(1)}, {}, 1000).isEmpty());
    EXPECT_TRUE(states.Update({Layer(1)}, {}, 5000).isEmpty());
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads");
}

TEST(LayerStates, TheScaleObscuresALayerAndGivesItBack)
{
    LayerStates states;
    EXPECT_EQ(states.Update({Layer(1)}, {}, 999), QSet<qint32>({1}));
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads (Obscured)");
    EXPECT_TRUE(states.Update({Layer(1)}, {}, 6000).isEmpty());
    EXPECT_EQ(states.Update({Layer(1)}, {}, 2000), QSet<qint32>({1}));
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads");
}

TEST(LayerStates, ASourceThatCannotBeReadSuppressesALayer)
{
    LayerStates states;
    EXPECT_EQ(states.Update({Layer(1), Layer(2)}, {2}, 2000), QSet<qint32>({2}));
    EXPECT_EQ(states.Marked(2, "Rivers"), "Rivers (Suppressed)");
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads");
}

TEST(LayerStates, AnUnreadableSourceOutweighsTheScale)
{
    LayerStates states;
    states.Update({Layer(1)}, {}, 1);
    EXPECT_EQ(states.Update({Layer(1)}, {1}, 1), QSet<qint32>({1}));
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads (Suppressed)");
    EXPECT_EQ(states.Update({Layer(1)}, {}, 1), QSet<qint32>({1}));
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads (Obscured)");
}

TEST(LayerStates, ALayerThatIsGoneIsForgotten)
{
    LayerStates states;
    states.Update({Layer(1)}, {}, 1);
    EXPECT_EQ(states.Update({}, {}, 1), QSet<qint32>({1}));
    EXPECT_EQ(states.Marked(1, "Roads"), "Roads");
}

} // namespace Orvane
