// SPDX-License-Identifier: MIT
#include "shell/tools/MeasureTool.h"

#include "shell/tools/ToolCanvas.h"

#include <QLocale>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class MeasureToolTest : public ToolCanvasTest
{
protected:
    MeasureToolTest()
    {
        QLocale::setDefault(QLocale::c());
        m_layer = NamedLayer(1, "Squares", FeatureBuilder().Square(20, 20, 40).Done());
        Show({m_layer});
        Take(m_line);
    }
    ~MeasureToolTest() override { QLocale::setDefault(QLocale::system()); }

    void DoubleClick(double x, double y)
    {
        Click(x, y);
        QTest::mouseDClick(&m_canvas, Qt::LeftButton, {}, Pixel(x, y));
    }
    void SnapToSquares()
    {
        m_layer.flags.snapRequired = true;
        Show({m_layer});
    }

    MapLayer m_layer;
    MeasureTool m_line{m_canvas, MeasureTool::Kind::Line};
    MeasureTool m_area{m_canvas, MeasureTool::Kind::Area};
};

} // namespace

TEST_F(MeasureToolTest, ClicksMeasureALineOfMapUnitsWhereTheSystemIsNotKnown)
{
    EXPECT_EQ(m_status, "Click to set a vertex, double-click to end.");
    Click(10, 90);
    Click(40, 90);
    Click(40, 50);
    EXPECT_EQ(m_status, "Length: 70.0");
}

TEST_F(MeasureToolTest, TheLineFollowsThePointerBeforeTheNextClick)
{
    Click(10, 90);
    Hover(60, 90);
    EXPECT_EQ(m_status, "Length: 50.0");
    EXPECT_THAT(m_line.Vertices(), SizeIs(1));
}

TEST_F(MeasureToolTest, ADoubleClickEndsAndTheNextClickBeginsAgain)
{
    Click(10, 90);
    DoubleClick(40, 90);
    Hover(90, 90);
    EXPECT_EQ(m_status, "Length: 30.0");
    Click(70, 70);
    EXPECT_THAT(m_line.Vertices(), ElementsAre(QPointF(70, 70)));
}

TEST_F(MeasureToolTest, TheRightButtonAndEnterEndToo)
{
    Click(10, 90);
    Click(40, 90);
    QTest::mouseClick(&m_canvas, Qt::RightButton, {}, Pixel(80, 90));
    Hover(90, 90);
    EXPECT_EQ(m_status, "Length: 30.0");
    Click(10, 80);
    Click(30, 80);
    Press(Qt::Key_Return);
    Hover(91, 90);
    EXPECT_EQ(m_status, "Length: 20.0");
}

TEST_F(MeasureToolTest, BackspaceTakesTheLastVertexBackAndEscForgetsAll)
{
    Click(10, 90);
    Click(40, 90);
    Click(90, 90);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(m_status, "Length: 30.0");
    Press(Qt::Key_Escape);
    EXPECT_THAT(m_line.Vertices(), IsEmpty());
    Press(Qt::Key_Backspace);
    EXPECT_THAT(m_line.Vertices(), IsEmpty());
}

TEST_F(MeasureToolTest, AnAreaAndItsPerimeterAreMeasured)
{
    Take(m_area);
    Click(10, 60);
    Click(40, 60);
    Click(40, 90);
    Click(10, 90);
    EXPECT_EQ(m_status, "Area: 900, perimeter: 120");
}

TEST_F(MeasureToolTest, ADragMovesTheMapAndSetsNoVertex)
{
    Click(10, 90);
    Drag({50, 50}, {70, 60});
    EXPECT_THAT(m_line.Vertices(), SizeIs(1));
    EXPECT_NEAR(m_canvas.View().Centre().x(), 30, 1e-9);
}

TEST_F(MeasureToolTest, AVertexSnapsToALayerThatAsksForIt)
{
    Click(21, 22);
    EXPECT_THAT(m_line.Vertices(), ElementsAre(QPointF(21, 22)));
    Press(Qt::Key_Escape);
    SnapToSquares();
    Click(21, 22);
    EXPECT_THAT(m_line.Vertices(), ElementsAre(QPointF(20, 20)));
}

TEST_F(MeasureToolTest, AVertexSnapsToNoLayerThatIsNotShown)
{
    SnapToSquares();
    m_layer.visible = false;
    Show({m_layer});
    Click(21, 22);
    EXPECT_THAT(m_line.Vertices(), ElementsAre(QPointF(21, 22)));
}

TEST_F(MeasureToolTest, ThePlaceThatAClickWouldSnapToIsMarked)
{
    SnapToSquares();
    const QColor before = ColourAt(17, 20);
    Hover(21, 22);
    EXPECT_NE(ColourAt(17, 20), before);
}

TEST_F(MeasureToolTest, TheLineIsDrawnOverTheMap)
{
    const QColor before = ColourAt(20, 90);
    Click(10, 90);
    Click(90, 90);
    EXPECT_NE(ColourAt(20, 90), before);
    m_canvas.SetTool(nullptr);
    EXPECT_EQ(ColourAt(20, 90), before);
}

TEST_F(MeasureToolTest, OnlyAnAreaIsFilled)
{
    const QColor before = ColourAt(36, 75);
    const auto draw = [&] {
        Click(10, 70);
        Click(40, 70);
        Click(40, 95);
    };
    draw();
    EXPECT_EQ(ColourAt(36, 75), before);
    Take(m_area);
    draw();
    Hover(12, 95);
    EXPECT_NE(ColourAt(36, 75), before);
}

TEST_F(MeasureToolTest, DegreesAreMeasuredOnTheEarth)
{
    m_line.SetSystem("EPSG:4326");
    Click(0, 0);
    Click(1, 0);
    EXPECT_EQ(m_status, "Length: 111 km");
    m_area.SetSystem("EPSG:4326");
    Take(m_area);
    Click(0, 0);
    Click(1, 0);
    Click(1, 1);
    Click(0, 1);
    EXPECT_EQ(m_status, "Area: 12309 km², perimeter: 444 km");
}

TEST_F(MeasureToolTest, OffTheEarthThereIsNothingToMeasure)
{
    m_line.SetSystem("EPSG:4326");
    Click(50, 80);
    Click(50, 99);
    EXPECT_EQ(m_status, "Length: outside the projection");
}

TEST_F(MeasureToolTest, TheRightButtonEndsALineAndIsFreeWithoutOne)
{
    EXPECT_FALSE(m_line.RightClick({10, 10}));
    Click(10, 10);
    Click(40, 10);
    EXPECT_TRUE(m_line.RightClick({10, 10}));
    EXPECT_FALSE(m_line.RightClick({10, 10}));
}

} // namespace Orvane
