// SPDX-License-Identifier: MIT
#include "shell/features/HitTest.h"

#include "shell/tools/ToolCanvas.h"

#include <cmath>
#include <numbers>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MapView View({50, 50}, 0.5, {200, 200}); // two pixels per unit

bool Any(const MapLayer&)
{
    return true;
}

std::vector<std::pair<qint32, qint64>> Found(const std::vector<Hit>& hits)
{
    std::vector<std::pair<qint32, qint64>> found;
    for (const Hit& hit : hits)
        found.emplace_back(hit.layer->layerID, hit.layer->features->FeatureId(hit.feature));
    return found;
}

std::vector<std::pair<qint32, qint64>> HitsAt(const std::vector<MapLayer>& layers, double x, double y)
{
    return Found(HitTest(layers, View).At(View.ToPixel({x, y}), Any));
}

using IDs = std::pair<qint32, qint64>;

} // namespace

TEST(HitTest, AnAreaIsHitInsideAndNotInItsHole)
{
    const auto ring = FeatureBuilder()
                          .Add(
                              FeatureKind::Area,
                              {{{10, 10}, {90, 10}, {90, 90}, {10, 90}, {10, 10}},
                               {{30, 30}, {70, 30}, {70, 70}, {30, 70}, {30, 30}}})
                          .Done();
    const std::vector<MapLayer> layers = {NamedLayer(1, "Ring", ring)};
    EXPECT_THAT(HitsAt(layers, 20, 20), ElementsAre(IDs(1, 1)));
    EXPECT_THAT(HitsAt(layers, 50, 50), IsEmpty());
    EXPECT_THAT(HitsAt(layers, 5, 5), IsEmpty());
}

TEST(HitTest, ARingThatIsNotClosedIsHitInsideToo)
{
    const auto open = FeatureBuilder().Add(FeatureKind::Area, {{{10, 10}, {90, 10}, {50, 90}}}).Done();
    EXPECT_THAT(HitsAt({NamedLayer(1, "Open", open)}, 50, 40), ElementsAre(IDs(1, 1)));
}

TEST(HitTest, ALineIsHitWithinAFewPixelsOnly)
{
    const auto line = FeatureBuilder().Add(FeatureKind::Line, {{{10, 50}, {90, 50}}}).Done();
    const std::vector<MapLayer> layers = {NamedLayer(1, "Line", line)};
    EXPECT_THAT(HitsAt(layers, 50, 52), ElementsAre(IDs(1, 1)));
    EXPECT_THAT(HitsAt(layers, 50, 54), IsEmpty());
    EXPECT_THAT(HitsAt(layers, 94, 50), IsEmpty());
}

TEST(HitTest, ABroadLineIsHitWhereverItsInkIs)
{
    const auto line = FeatureBuilder().Add(FeatureKind::Line, {{{10, 50}, {90, 50}}}).Done();
    MapLayer layer = NamedLayer(1, "Motorway", line);
    layer.look.outline.setWidthF(30);
    EXPECT_THAT(HitsAt({layer}, 50, 57), ElementsAre(IDs(1, 1)));
}

TEST(HitTest, ASymbolIsHitWhereverItsInkIs)
{
    const auto point = FeatureBuilder().Add(FeatureKind::Point, {{{50, 50}}}).Done();
    MapLayer layer = NamedLayer(1, "Town", point);
    EXPECT_THAT(HitsAt({layer}, 56, 50), IsEmpty());
    layer.look.symbolRadius = 12;
    EXPECT_THAT(HitsAt({layer}, 56, 50), ElementsAre(IDs(1, 1)));
}

TEST(HitTest, TheTopmostLayerComesFirst)
{
    const auto square = FeatureBuilder().Square(10, 10, 80).Done();
    MapLayer backdrop = NamedLayer(1, "Backdrop", square, 1);
    backdrop.mode = DrawMode::Backdrop;
    const std::vector<MapLayer> layers
        = {backdrop, NamedLayer(2, "Low", square, 200), NamedLayer(3, "High", square, 5),
           NamedLayer(4, "High, later", square, 5)};
    EXPECT_THAT(HitsAt(layers, 50, 50), ElementsAre(IDs(4, 1), IDs(3, 1), IDs(2, 1), IDs(1, 1)));
}

TEST(HitTest, WhatIsSeenThroughAnAreaWithoutFillComesBeforeIt)
{
    MapLayer limits = NamedLayer(1, "Limits", FeatureBuilder().Square(10, 10, 80).Done(), 1);
    limits.look.fill = Qt::NoBrush;
    const MapLayer ground = NamedLayer(2, "Ground", FeatureBuilder().Square(0, 0, 100).Done(), 200);
    EXPECT_THAT(HitsAt({limits, ground}, 50, 50), ElementsAre(IDs(2, 1), IDs(1, 1)));
    EXPECT_THAT(HitsAt({limits, ground}, 11, 50), ElementsAre(IDs(1, 1), IDs(2, 1)));
    EXPECT_THAT(HitsAt({limits}, 50, 50), ElementsAre(IDs(1, 1)));
}

TEST(HitTest, OfOneLayerTheNearestComesFirstAndThenTheLastDrawn)
{
    const auto lines = FeatureBuilder()
                           .Add(FeatureKind::Line, {{{10, 51}, {90, 51}}})
                           .Add(FeatureKind::Line, {{{10, 50}, {90, 50}}})
                           .Add(FeatureKind::Line, {{{10, 50}, {80, 50}}})
                           .Done();
    EXPECT_THAT(
        HitsAt({NamedLayer(7, "Lines", lines)}, 50, 50), ElementsAre(IDs(7, 3), IDs(7, 2), IDs(7, 1)));
}

TEST(HitTest, AsksOnlyLayersThatMeetTheConditionAndHaveFeatures)
{
    const auto square = FeatureBuilder().Square(10, 10, 80).Done();
    const std::vector<MapLayer> layers
        = {NamedLayer(1, "Yes", square), NamedLayer(2, "No", square), NamedLayer(3, "Unread", nullptr)};
    const auto hits
        = HitTest(layers, View).At({100, 100}, [](const MapLayer& layer) { return layer.name != "No"; });
    EXPECT_THAT(Found(hits), ElementsAre(IDs(1, 1)));
}

TEST(HitTest, ARectangleFindsWhatItTouchesAndNotWhatOnlyItsBoxTouches)
{
    const auto features = FeatureBuilder()
                              .Square(40, 40, 5) // inside
                              .Add(FeatureKind::Line, {{{0, 50}, {100, 50}}}) // through it
                              .Square(0, 0, 100) // around it
                              .Add(FeatureKind::Line, {{{0, 70}, {70, 0}}}) // past its corner
                              .Add(FeatureKind::Point, {{{80, 80}}})
                              .Done();
    const std::vector<MapLayer> layers = {NamedLayer(1, "All", features)};
    const QRectF pixels(View.ToPixel({38, 62}), View.ToPixel({62, 38}));
    EXPECT_THAT(
        Found(HitTest(layers, View).Within(pixels, Any)), ElementsAre(IDs(1, 1), IDs(1, 2), IDs(1, 3)));
}

TEST(HitTest, SnapsToTheNearestVertexRatherThanToANearerEdge)
{
    const auto line = FeatureBuilder().Add(FeatureKind::Line, {{{50, 50}, {90, 50}}}).Done();
    const std::vector<MapLayer> layers = {NamedLayer(1, "Line", line)};
    const HitTest test(layers, View);
    EXPECT_EQ(test.SnapPoint(View.ToPixel({53, 51}), Any), QPointF(50, 50));
    EXPECT_EQ(test.SnapPoint(View.ToPixel({70, 52}), Any), QPointF(70, 50));
    EXPECT_EQ(test.SnapPoint(View.ToPixel({70, 60}), Any), std::nullopt);
}

TEST(HitTest, APointOfADegenerateLineIsItsOwnDistance)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(std::vector<QPointF>{{3, 4}});
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(std::vector<QPointF>{{3, 4}, {3, 4}});
    EXPECT_EQ(DistanceTo(set, 0, {0, 0}), 5);
    EXPECT_EQ(DistanceTo(set, 1, {0, 0}), 5);
}

TEST(HitTest, AFeatureWithoutPartsIsNeverHit)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Area);
    EXPECT_EQ(DistanceTo(set, 0, {0, 0}), std::numeric_limits<double>::infinity());
    EXPECT_FALSE(Touches(set, 0, {-1, -1, 1, 1}));
}

TEST(HitTest, AgreesWithARoundShapeOfManyVertices)
{
    std::vector<QPointF> circle;
    for (int i = 0; i <= 20000; ++i)
        circle.emplace_back(
            50 + 40 * std::cos(i * std::numbers::pi / 10000),
            50 + 40 * std::sin(i * std::numbers::pi / 10000));
    const auto round = FeatureBuilder().Add(FeatureKind::Area, {circle}).Done();
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const QPointF way(
            std::cos(degrees * std::numbers::pi / 180), std::sin(degrees * std::numbers::pi / 180));
        EXPECT_EQ(DistanceTo(*round, 0, QPointF(50, 50) + way * 39.9), 0) << degrees;
        EXPECT_NEAR(DistanceTo(*round, 0, QPointF(50, 50) + way * 43), 3, 1e-4) << degrees;
    }
}

} // namespace Orvane
