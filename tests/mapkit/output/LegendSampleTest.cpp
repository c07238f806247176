// SPDX-License-Identifier: MIT
#include "mapkit/output/LegendSample.h"

#include "hostkit/StandardShellServices.h"
#include "hostkit/common/FillPatterns.h"
#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/output/PageSettings.h"
#include "samples/FillSample.h"

#include <OrvaneShellLib/LayerValues.h>

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr qint32 Red = 0x0000FF;
constexpr qint32 Blue = 0xFF0000;
constexpr qint32 Green = 0x00FF00;
constexpr qint32 Transparent = qint32(0xFF000000u);
const QRect Place(4, 4, 40, 20);

LegendRow Row(FeatureKind kind, const DrawingValues& values)
{
    LegendRow row;
    row.kind = kind;
    row.values = values;
    row.look = LookOf(values, StandardShellServices(), PagePixelsPerMillimetre);
    if (values.fillStyle > 0 && values.fillStyle != HollowFill)
        row.fillPattern = FillPatterns::Bitmap(values.fillStyle);
    return row;
}

DrawingValues Filled(int fillStyle)
{
    DrawingValues values;
    values.color = Green;
    values.fillForeColor = Red;
    values.fillBackColor = Blue;
    values.fillStyle = fillStyle;
    values.outlineStyle = 15;
    return values;
}

DrawingValues Drawn(int outlineStyle, int thickness)
{
    DrawingValues values;
    values.color = Red;
    values.outlineStyle = outlineStyle;
    values.lineThickness = thickness;
    return values;
}

QImage Painted(const LegendRow& row, int scale = 1)
{
    QImage image(QSize(48, 28) * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    PaintLegendSample(painter, Place, row);
    return image;
}

// The number of pixels of that colour in the column in the middle of the sample.
int PixelsDown(const QImage& image, QColor colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        count += image.pixelColor(image.width() / 2, y) == colour ? 1 : 0;
    return count;
}

} // namespace

TEST(LegendSample, EveryFillLooksAsTheFillListShowsIt)
{
    for (int style = 0; style <= LastFillStyle; ++style) {
        QImage expected(48, 28, QImage::Format_RGB32);
        expected.fill(Qt::white);
        const LegendRow row = Row(FeatureKind::Area, Filled(style));
        QPainter painter(&expected);
        PaintFillSample(painter, Place, {style, row.fillPattern, {Green, Red, Blue}, 0xFFFFFF});
        painter.end();
        EXPECT_EQ(Painted(row), expected) << style;
    }
}

TEST(LegendSample, TransparentColoursShowThePaper)
{
    DrawingValues values = Filled(0);
    values.fillForeColor = Transparent;
    EXPECT_EQ(Painted(Row(FeatureKind::Area, values)).pixelColor(24, 14), QColor(Qt::white));
    values.fillBackColor = Transparent;
    EXPECT_EQ(Painted(Row(FeatureKind::Area, values)).pixelColor(24, 14), QColor(Qt::white));
}

TEST(LegendSample, AnAreaHasItsOutline)
{
    DrawingValues values = Filled(0);
    values.outlineStyle = 0;
    values.lineThickness = -2;
    const QImage image = Painted(Row(FeatureKind::Area, values));
    EXPECT_EQ(image.pixelColor(Place.left(), 14), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(Place.left() + 1, 14), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(Place.left() + 3, 14), QColor(Qt::red));
}

TEST(LegendSample, ALineOfPixelsIsAsBroadAndInItsColour)
{
    EXPECT_EQ(PixelsDown(Painted(Row(FeatureKind::Line, Drawn(0, -4)), 10), Qt::red), 40);
}

TEST(LegendSample, ALineOfMillimetresIsTrueOnPaper)
{
    const double expected = 2 * PagePixelsPerMillimetre * 10;
    EXPECT_NEAR(PixelsDown(Painted(Row(FeatureKind::Line, Drawn(0, 2)), 10), Qt::red), expected, 2);
}

TEST(LegendSample, ACasedLineHasItsCoreBetweenItsEdges)
{
    LegendRow row = Row(FeatureKind::Line, Drawn(0, -6));
    row.look.cased = CasedLine{QPen(Qt::blue, 6), QPen(Qt::yellow, 4)};
    const QImage image = Painted(row, 10);
    EXPECT_EQ(PixelsDown(image, Qt::yellow), 40);
    EXPECT_EQ(PixelsDown(image, Qt::blue), 20);
}

TEST(LegendSample, ThePatternsOfLinesDiffer)
{
    QList<QImage> images;
    for (int style = 0; style <= 4; ++style) {
        const QImage image = Painted(Row(FeatureKind::Line, Drawn(style, 0)), 4);
        EXPECT_FALSE(images.contains(image)) << style;
        images.append(image);
    }
}

TEST(LegendSample, NoLineIsNoLine)
{
    QImage empty(48, 28, QImage::Format_RGB32);
    empty.fill(Qt::white);
    EXPECT_EQ(Painted(Row(FeatureKind::Line, Drawn(15, 0))), empty);
}

TEST(LegendSample, APointIsTheMapsSymbolInTheMiddle)
{
    const QImage image = Painted(Row(FeatureKind::Point, Drawn(0, 0)));
    EXPECT_EQ(image.pixelColor(Place.center()), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(Place.left() + 2, Place.center().y()), QColor(Qt::white));
}

TEST(LegendSample, ARasterShowsItsMiddle)
{
    const DataFolder folder;
    const QString path = folder.Path("photo.tif");
    WriteRaster(path, {.bands = 3}, [](int column, int, int band) {
        return band == (column < 50 ? 1 : 2) ? 255 : 0;
    });
    LegendRow row = Row(FeatureKind::Area, Filled(0));
    row.raster = std::make_shared<const MapRaster>(LayerSource{1, path, {}, {}}, "EPSG:4326");
    const QImage image = Painted(row);
    EXPECT_EQ(image.pixelColor(8, 14), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(40, 14), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(2, 14), QColor(Qt::white));
    ASSERT_TRUE(QFile::resize(path, 1000));
    EXPECT_EQ(Painted(row).pixelColor(2, 14), QColor(Qt::white)) << "damaged";
}

TEST(LegendSample, ABackdropIsPale)
{
    LegendRow row = Row(FeatureKind::Area, Filled(0));
    row.backdrop = true;
    const QColor pale = Painted(row).pixelColor(24, 14);
    EXPECT_EQ(pale.red(), 255);
    EXPECT_GT(pale.green(), 150);
}

TEST(LegendSample, NothingIsPaintedOutsideThePlace)
{
    for (const FeatureKind kind : {FeatureKind::Point, FeatureKind::Line, FeatureKind::Area}) {
        const QImage image = Painted(Row(kind, Drawn(0, 30)));
        for (int x = 0; x < image.width(); ++x) {
            EXPECT_EQ(image.pixelColor(x, Place.top() - 1), QColor(Qt::white)) << x;
            EXPECT_EQ(image.pixelColor(x, Place.bottom() + 1), QColor(Qt::white)) << x;
        }
    }
}

} // namespace Orvane
