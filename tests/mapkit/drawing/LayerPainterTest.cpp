// SPDX-License-Identifier: MIT
#include "mapkit/drawing/LayerPainter.h"

#include "hostkit/StandardShellServices.h"
#include "mapkit/Drawings.h"
#include "mapkit/looks/LayerRendering.h"
#include "mapkit/looks/RendererStyles.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// One map unit per pixel; (0, 0) is the lower left corner.
const MapView View({50, 50}, 1, QSize(100, 100));
constexpr qint32 Transparent = qint32(0xff000000u);
constexpr qint32 Red = 0x0000ff; // BGR
constexpr qint32 Blue = 0xff0000;
constexpr qint32 Yellow = 0x00ffff;

class LayerPainterTest : public testing::Test
{
protected:
    // Draws as for a row of a map file. numbers: one per feature, for classes.
    QImage Picture(
        const DrawingValues& values, std::shared_ptr<const FeatureSet> features,
        const std::vector<double>& numbers = {})
    {
        MapLayer layer;
        layer.values = values;
        layer.look = LookOf(values, m_services, 4);
        layer.features = std::move(features);
        if (!numbers.empty()) {
            layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::EqualSteps, 2);
            layer.classLooks = ClassLooksOf(values, LayerRendering(), m_services, layer.classes->Count());
        }
        QImage image(View.Size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        const std::atomic<bool> cancelled = false;
        PaintLayer(painter, layer, View, cancelled);
        return image;
    }

    StandardShellServices m_services;
};

DrawingValues Values(qint32 style, int thickness = 0)
{
    DrawingValues values;
    values.style = style;
    values.color = Blue;
    values.fillForeColor = Yellow;
    values.fillBackColor = Transparent;
    values.lineThickness = thickness;
    return values;
}

std::shared_ptr<const FeatureSet> Cross()
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(std::vector<QPointF>{{0, 50}, {100, 50}});
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(std::vector<QPointF>{{50, 0}, {50, 100}});
    return std::make_shared<const FeatureSet>(std::move(set));
}

std::shared_ptr<const FeatureSet> ThreeAreas()
{
    FeatureSet set;
    for (const double west : {5, 35, 65}) {
        set.BeginFeature(FeatureKind::Area);
        set.AddPart(Area(west, 20, west + 25, 80)->Part(0));
    }
    return std::make_shared<const FeatureSet>(std::move(set));
}

} // namespace

TEST_F(LayerPainterTest, ACasedLineHasEdgesInTheLineColourAndACoreInTheFillColour)
{
    const QImage image = Picture(Values(RendererStyles::Cased, -10), Line({{0, 50}, {100, 50}}));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::yellow));
    EXPECT_EQ(image.pixelColor(50, 45), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(50, 54), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(50, 58), QColor(Qt::white));
}

TEST_F(LayerPainterTest, CasedLinesThatMeetRunIntoOneAnother)
{
    const QImage image = Picture(Values(RendererStyles::Cased, -10), Cross());
    for (int along = 35; along < 65; ++along) {
        EXPECT_EQ(image.pixelColor(along, 50), QColor(Qt::yellow)) << along;
        EXPECT_EQ(image.pixelColor(50, along), QColor(Qt::yellow)) << along;
    }
}

TEST_F(LayerPainterTest, TheThinnestCasedLineStillHasEdgesAndACore)
{
    const QImage image = Picture(Values(RendererStyles::Cased), Line({{0, 50}, {100, 50}}));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::yellow));
    EXPECT_EQ(image.pixelColor(50, 48), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(50, 51), QColor(Qt::blue));
}

TEST_F(LayerPainterTest, ThePatternOfACasedLineIsThatOfItsCore)
{
    DrawingValues values = Values(RendererStyles::Cased, -10);
    values.outlineStyle = 1;
    const QImage image = Picture(values, Line({{0, 50}, {100, 50}}));
    int core = 0, gaps = 0;
    for (int x = 5; x < 95; ++x) {
        core += image.pixelColor(x, 50) == QColor(Qt::yellow);
        gaps += image.pixelColor(x, 50) == QColor(Qt::blue);
        EXPECT_EQ(image.pixelColor(x, 45), QColor(Qt::blue)) << x;
    }
    EXPECT_GT(core, 20);
    EXPECT_GT(gaps, 10);
}

TEST_F(LayerPainterTest, AreasOfACasedLayerAreDrawnPlainly)
{
    EXPECT_EQ(Picture(Values(RendererStyles::Cased, -3), ThreeAreas()), Picture(Values(0, -3), ThreeAreas()));
}

TEST_F(LayerPainterTest, ClassesGoFromTheBackColourToTheForeColour)
{
    DrawingValues values = Values(RendererStyles::Graduated);
    values.fillBackColor = Red;
    const QImage image = Picture(values, ThreeAreas(), {1, 2, 100});
    EXPECT_EQ(image.pixelColor(15, 50), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(45, 50), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(75, 50), QColor(Qt::yellow));
}

TEST_F(LayerPainterTest, WithOneFillColourClassesGoFromPaleToStrong)
{
    const QImage image = Picture(Values(RendererStyles::Graduated), ThreeAreas(), {1, 2, 100});
    EXPECT_EQ(image.pixelColor(75, 50), QColor(Qt::yellow));
    const QColor pale = image.pixelColor(15, 50);
    EXPECT_EQ(pale.red(), 255);
    EXPECT_GT(pale.blue(), 150);
    EXPECT_LT(pale.blue(), 255);
}

TEST_F(LayerPainterTest, ClassifiedAreasKeepTheLayersOutline)
{
    const QImage image = Picture(Values(RendererStyles::Graduated, -4), ThreeAreas(), {1, 2, 100});
    EXPECT_EQ(image.pixelColor(5, 50), QColor(Qt::blue));
}

TEST_F(LayerPainterTest, LinesAndPointsTakeTheColourOfTheirClass)
{
    DrawingValues values = Values(RendererStyles::Graduated, -6);
    values.fillBackColor = Red;
    EXPECT_EQ(Picture(values, Cross(), {1, 100}).pixelColor(20, 50), QColor(Qt::red));
    EXPECT_EQ(Picture(values, Cross(), {1, 100}).pixelColor(50, 20), QColor(Qt::yellow));
    EXPECT_EQ(Picture(values, Point(50, 50), {1}).pixelColor(50, 50), QColor(Qt::yellow));
}

TEST_F(LayerPainterTest, WhatHasNoNumberIsGrey)
{
    const QColor grey
        = Picture(Values(RendererStyles::Graduated), ThreeAreas(), {1, NAN, 100}).pixelColor(45, 50);
    EXPECT_EQ(grey.saturation(), 0);
    EXPECT_NE(grey, QColor(Qt::white));
}

TEST_F(LayerPainterTest, UntilItsNumbersAreReadAGraduatedLayerIsDrawnPlainly)
{
    EXPECT_EQ(Picture(Values(RendererStyles::Graduated), ThreeAreas()), Picture(Values(0), ThreeAreas()));
}

TEST(RendererStyles, EachOfferedStyleHasItsOwnNumberAndName)
{
    std::set<qint32> numbers{0};
    QStringList names;
    for (const RendererStyle& style : RendererStyles::Offered()) {
        EXPECT_TRUE(numbers.insert(style.number).second) << style.number;
        EXPECT_FALSE(names.contains(style.name)) << qPrintable(style.name);
        names << style.name;
    }
}

TEST(RendererStyles, ANumberThatNoStyleHasCountsAsStandard)
{
    for (const qint32 style : {8, 9, 17, -1, 0}) {
        EXPECT_FALSE(RendererStyles::Has(style, RendererStyles::Labelled)) << style;
        EXPECT_FALSE(RendererStyles::Has(style, RendererStyles::Cased)) << style;
    }
    EXPECT_TRUE(RendererStyles::Has(5, RendererStyles::Labelled));
    EXPECT_FALSE(RendererStyles::Has(5, RendererStyles::Graduated));
}

} // namespace Orvane
