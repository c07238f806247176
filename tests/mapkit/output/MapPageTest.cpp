// SPDX-License-Identifier: MIT
#include "mapkit/output/MapPage.h"

#include "mapkit/output/OutputFixture.h"

namespace Orvane {

using namespace Testing;

namespace {

class MapPageTest : public OutputFixture
{
protected:
    static int CountAcross(const QImage& image, int y, QColor colour)
    {
        int count = 0;
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        return count;
    }
};

} // namespace

TEST_F(MapPageTest, TheWholeAreaIsShownAsLargeAsItFits)
{
    AddSquare("Square");
    const MapPage page = Page(Bare());
    EXPECT_NEAR(page.ScaleDenominator(), 10000, 100) << "a kilometre on ten centimetres";
    const QImage image = Painted(page);
    EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(990, 990), QColor(Qt::red));
}

TEST_F(MapPageTest, AScaleIsKeptAroundTheMiddle)
{
    AddSquare("Square");
    PageSettings settings = Bare();
    settings.scaleDenominator = 50000;
    const MapPage page = Page(settings);
    EXPECT_NEAR(page.ScaleDenominator(), 50000, 1e-6);
    const QImage image = Painted(page);
    EXPECT_NEAR(CountAcross(image, 500, Qt::red), 200, 2) << "a kilometre is two centimetres";
    EXPECT_EQ(image.pixelColor(500, 500), QColor(Qt::red));
}

TEST_F(MapPageTest, WidthsInMillimetresAreTrueOnPaper)
{
    MapLayer& layer = AddSquare("Line");
    layer.values.outlineStyle = 0;
    layer.values.lineThickness = 3;
    layer.features = Line({{500500, 5300000}, {500500, 5301000}});
    m_layers.push_back(layer);
    m_layers.back().layerID = 99;
    m_layers.back().values.outlineStyle = 15;
    m_layers.back().features = Area(500000, 5300000, 500001, 5301000);
    m_layers.back().values.fillForeColor = 0xFFFFFF;
    EXPECT_NEAR(CountAcross(Painted(Page(Bare())), 500, Qt::black), 30, 1);
    EXPECT_NEAR(CountAcross(Painted(Page(Bare()), 20), 500, Qt::black), 60, 1);
}

TEST_F(MapPageTest, ALayerOutOfScaleIsNeitherDrawnNorInTheLegend)
{
    AddSquare("Shown");
    AddSquare("Too close for it").minDenominator = 1e6;
    PageSettings settings = Bare(200);
    settings.legend = true;
    const MapPage page = Page(settings);
    ASSERT_EQ(page.Legend().size(), 1u);
    EXPECT_EQ(page.Legend()[0].text, "Shown");
}

TEST_F(MapPageTest, ThePageIsWhiteAroundTheMapAndTheMapIsFramed)
{
    AddSquare("Square");
    PageSettings settings = Bare();
    settings.margin = 10;
    const QImage image = Painted(Page(settings));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(95, 500), QColor(Qt::white));
    EXPECT_LT(image.pixelColor(100, 500).red(), 128) << "the frame";
    EXPECT_EQ(image.pixelColor(110, 500), QColor(Qt::red));
}

TEST_F(MapPageTest, TheColourUnderTheMapEndsAtItsFrame)
{
    AddSquare("Square");
    m_layers.back().features = Area(500000, 5300000, 500000, 5300000);
    m_background = Qt::darkBlue;
    PageSettings settings = Bare();
    settings.margin = 10;
    const QImage image = Painted(Page(settings));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(120, 120), QColor(Qt::darkBlue));
}

TEST_F(MapPageTest, NothingOfTheMapLeavesItsFrame)
{
    AddSquare("Square");
    PageSettings settings = Bare();
    settings.margin = 10;
    settings.scaleDenominator = 1000;
    const QImage image = Painted(Page(settings));
    EXPECT_EQ(CountAcross(image, 90, Qt::red), 0);
    EXPECT_EQ(CountAcross(image, 500, Qt::red), CountAcross(image, 120, Qt::red));
}

TEST_F(MapPageTest, TitleLegendAndScaleBarAreOnThePage)
{
    AddSquare("Square");
    PageSettings settings = Bare(200);
    settings.margin = 10;
    const QImage bare = Painted(Page(settings));
    settings.title = "A title";
    const QImage titled = Painted(Page(settings));
    settings.legend = true;
    const QImage withLegend = Painted(Page(settings));
    settings.scaleBar = true;
    const QImage all = Painted(Page(settings));
    EXPECT_NE(bare, titled);
    EXPECT_NE(titled, withLegend);
    EXPECT_NE(withLegend, all);
}

TEST_F(MapPageTest, AnEmptyMapHasAPageToo)
{
    PageSettings settings;
    settings.title = "Nothing yet";
    const MapPage page = Page(settings);
    EXPECT_TRUE(page.Legend().empty());
    EXPECT_EQ(Painted(page, 2).pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(MapPageTest, CancellingStopsTheDrawing)
{
    AddSquare("Square");
    const MapPage page = Page(Bare());
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    page.Paint(painter, true);
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
}

} // namespace Orvane
