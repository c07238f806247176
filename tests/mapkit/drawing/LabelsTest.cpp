// SPDX-License-Identifier: MIT
#include "mapkit/drawing/Labels.h"

#include "mapkit/Drawings.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

// One map unit per pixel; (0, 0) is the lower left corner.
const MapView View({200, 200}, 1, QSize(400, 400));

MapLayer Labelled(qint32 layerID, std::shared_ptr<const FeatureSet> features, std::vector<QString> texts)
{
    MapLayer layer = FilledLayer(layerID, Qt::blue, std::move(features));
    AttributeColumn column;
    column.texts = std::move(texts);
    layer.labels = std::make_shared<const AttributeColumn>(std::move(column));
    return layer;
}

std::shared_ptr<const FeatureSet> Points(std::initializer_list<QPointF> points)
{
    FeatureSet set;
    for (const QPointF& point : points) {
        set.BeginFeature(FeatureKind::Point);
        set.AddPart(std::vector<QPointF>{point});
    }
    return std::make_shared<const FeatureSet>(std::move(set));
}

std::vector<QString> Placed(const std::vector<MapLayer>& layers)
{
    const std::atomic<bool> cancelled = false;
    std::vector<QString> texts;
    for (const Label& label : PlaceLabels(layers, View, cancelled))
        texts.push_back(label.text);
    return texts;
}

} // namespace

TEST(Labels, EachFeatureIsNamed)
{
    EXPECT_THAT(
        Placed({Labelled(1, Points({{100, 100}, {100, 300}}), {"Oslo", "Bergen"})}),
        ElementsAre("Oslo", "Bergen"));
}

TEST(Labels, OfTwoThatCannotBothStandTheOneOfTheTopLayerDoes)
{
    const auto place = Area(150, 190, 250, 210);
    EXPECT_THAT(Placed({Labelled(1, place, {"Below"}), Labelled(2, place, {"Above"})}), ElementsAre("Above"));
}

TEST(Labels, TheLargestAreaIsNamedFirst)
{
    FeatureSet set;
    for (const auto& area : {Area(150, 190, 250, 210), Area(0, 0, 400, 400)}) {
        set.BeginFeature(FeatureKind::Area);
        set.AddPart(area->Part(0));
    }
    const auto areas = std::make_shared<const FeatureSet>(std::move(set));
    EXPECT_THAT(Placed({Labelled(1, areas, {"Small", "Large"})}), ElementsAre("Large"));
}

TEST(Labels, NoLabelCoversASymbol)
{
    const std::atomic<bool> cancelled = false;
    const auto points = Points({{100, 200}, {120, 200}});
    const std::vector<MapLayer> layers = {Labelled(1, points, {"Hammerfest", ""})};
    const std::vector<Label> labels = PlaceLabels(layers, View, cancelled);
    ASSERT_EQ(labels.size(), 1u);
    EXPECT_NE(labels[0].spot.centre.y() == 200 && labels[0].spot.centre.x() > 100, true);
}

TEST(Labels, NoLabelLeavesTheView)
{
    EXPECT_THAT(Placed({Labelled(1, Points({{399, 200}}), {"Spitsbergen"})}), ElementsAre("Spitsbergen"));
    EXPECT_THAT(Placed({Labelled(1, Area(390, 0, 1000, 400), {"Spitsbergen"})}), IsEmpty());
}

TEST(Labels, AnAreaIsNamedInThePartThatIsInView)
{
    EXPECT_THAT(Placed({Labelled(1, Area(-5000, -5000, 400, 400), {"Siberia"})}), ElementsAre("Siberia"));
}

TEST(Labels, ALineOfManyPiecesIsNamedOnce)
{
    FeatureSet set;
    for (int i = 0; i < 3; ++i) {
        set.BeginFeature(FeatureKind::Line);
        set.AddPart(std::vector<QPointF>{{20.0 + i * 120, 200}, {140.0 + i * 120, 200}});
    }
    const auto street = std::make_shared<const FeatureSet>(std::move(set));
    EXPECT_THAT(
        Placed({Labelled(1, street, {"High St", "High St", "Low St"})}),
        UnorderedElementsAre("High St", "Low St"));
}

TEST(Labels, EmptyTextsAndFeaturesWithoutTextAreLeftOut)
{
    EXPECT_THAT(Placed({Labelled(1, Points({{100, 100}, {100, 200}, {100, 300}}), {"", "  "})}), IsEmpty());
}

TEST(Labels, ATextOfManyLinesIsOneLineOfBearableLength)
{
    EXPECT_THAT(
        Placed({Labelled(1, Points({{100, 100}}), {"Aix\nles\t Bains"})}), ElementsAre("Aix les Bains"));
    const MapView wide({0, 0}, 1, QSize(4000, 400));
    const std::atomic<bool> cancelled = false;
    const std::vector<MapLayer> layers = {Labelled(1, Points({{0, 0}}), {QString(5000, 'x')})};
    const std::vector<Label> labels = PlaceLabels(layers, wide, cancelled);
    ASSERT_EQ(labels.size(), 1u);
    EXPECT_LE(labels[0].text.size(), 80);
}

TEST(Labels, CancelledWorkPlacesNothing)
{
    const std::atomic<bool> cancelled = true;
    const std::vector<MapLayer> layers = {Labelled(1, Points({{100, 100}}), {"Oslo"})};
    EXPECT_THAT(PlaceLabels(layers, View, cancelled), IsEmpty());
}

TEST(Labels, AHaloPartsTheLettersFromTheMap)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    PaintLabels(painter, std::vector<Label>{{"Oslo", {{100, 30}}, Qt::darkRed}});
    painter.end();
    int halo = 0, letters = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            halo += image.pixelColor(x, y) == QColor(Qt::white);
            letters += image.pixelColor(x, y).red() > image.pixelColor(x, y).green() + 60;
        }
    }
    EXPECT_GT(halo, 30);
    EXPECT_GT(letters, 30);
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::black));
}

TEST(Labels, OnADarkMapTheHaloIsDarkAndTheLettersAreLight)
{
    QImage image(200, 60, QImage::Format_RGB32);
    const QColor night(20, 24, 40);
    image.fill(Qt::gray); // an area of the map
    QPainter painter(&image);
    PaintLabels(painter, std::vector<Label>{{"Oslo", {{100, 30}}, Qt::darkRed}}, night);
    painter.end();
    int halo = 0, letters = 0, white = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor colour = image.pixelColor(x, y);
            halo += colour == night;
            white += colour == QColor(Qt::white);
            letters += colour.lightnessF() > 0.7 && colour.red() > colour.green() + 60;
        }
    }
    EXPECT_GT(halo, 30);
    EXPECT_GT(letters, 10);
    EXPECT_EQ(white, 0);
}

TEST(Labels, OnALightMapPaleLettersAreDarkened)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintLabels(painter, std::vector<Label>{{"Oslo", {{100, 30}}, Qt::yellow}});
    painter.end();
    double darkest = 1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            darkest = std::min(darkest, double(image.pixelColor(x, y).lightnessF()));
    }
    EXPECT_LT(darkest, 0.45);
}

} // namespace Orvane
