// SPDX-License-Identifier: MIT
#include "shell/features/Highlight.h"

#include "shell/tools/ToolCanvas.h"

namespace Orvane {

using namespace Testing;

namespace {

class HighlightTest : public ToolCanvasTest
{
protected:
    HighlightTest()
    {
        m_layer = NamedLayer(1, "Squares", FeatureBuilder().Square(10, 10, 30).Square(60, 60, 30).Done());
        Show({m_layer});
    }

    bool IsMarked(double x, double y) { return ColourAt(x, y) != Unmarked(); }
    QColor Unmarked() { return ColourAt(50, 50); }

    MapLayer m_layer;
    Highlight m_highlight{m_canvas, Qt::red};
};

} // namespace

TEST_F(HighlightTest, MarksTheFeatureAndNoOther)
{
    m_highlight.Show({{1, 2}});
    EXPECT_TRUE(IsMarked(75, 60));
    EXPECT_EQ(ColourAt(75, 60), QColor(Qt::red));
    EXPECT_NE(ColourAt(25, 10), QColor(Qt::red));
    m_highlight.Clear();
    EXPECT_NE(ColourAt(75, 60), QColor(Qt::red));
}

TEST_F(HighlightTest, FollowsTheFeatureThatMoved)
{
    m_highlight.Show({{1, 2}});
    m_layer.features = FeatureBuilder().Square(10, 10, 30).Square(40, 40, 30).Done();
    Show({m_layer});
    EXPECT_EQ(ColourAt(55, 40), QColor(Qt::red));
}

TEST_F(HighlightTest, AMarkOfManyVerticesFollowsTheMapAndIsDrawnAnewWhenItRests)
{
    std::vector<QPointF> wave;
    for (int i = 0; i <= 30000; ++i)
        wave.emplace_back(20 + i * 0.002, i % 2 == 0 ? 50 : 50.01);
    m_layer.features = FeatureBuilder().Add(FeatureKind::Line, {wave}).Done();
    Show({m_layer});
    m_highlight.Show({{1, 1}});
    EXPECT_EQ(ColourAt(50, 50), QColor(Qt::red));
    m_canvas.SetView(m_canvas.View().Panned({0, 40}));
    EXPECT_EQ(ColourAt(50, 30), QColor(Qt::red));
    EXPECT_NE(ColourAt(50, 50), QColor(Qt::red));
    m_canvas.SetView(m_canvas.View().ZoomedAt({100, 140}, 40)); // a stretched mark would cover it all
    const auto isThin = [&] { return m_canvas.grab().toImage().pixelColor(100, 120) != QColor(Qt::red); };
    EXPECT_TRUE(QTest::qWaitFor(isThin));
    EXPECT_EQ(m_canvas.grab().toImage().pixelColor(100, 140), QColor(Qt::red));
}

TEST_F(HighlightTest, ALayerThatIsNotShownIsNotMarked)
{
    m_highlight.Show({{1, 2}});
    m_layer.maxDenominator = m_canvas.ScaleDenominator() * 0.9;
    Show({m_layer});
    EXPECT_NE(ColourAt(75, 60), QColor(Qt::red));
    m_canvas.ZoomIn();
    EXPECT_EQ(
        m_canvas.grab().toImage().pixelColor(m_canvas.View().ToPixel({62, 60}).toPoint()), QColor(Qt::red));
}

} // namespace Orvane
