// SPDX-License-Identifier: MIT
#include "shell/tools/SelectTool.h"

#include "shell/features/FeatureSelection.h"
#include "shell/tools/ToolCanvas.h"

#include <QLocale>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SelectToolTest : public ToolCanvasTest
{
protected:
    SelectToolTest()
    {
        m_roads = NamedLayer(1, "Roads", FeatureBuilder().Square(10, 10, 20).Square(60, 10, 20).Done(), 10);
        m_lakes = NamedLayer(2, "Lakes", FeatureBuilder().Square(5, 5, 40).Done(), 20);
        Show({m_roads, m_lakes});
        Take(m_tool);
    }

    MapLayer m_roads;
    MapLayer m_lakes;
    FeatureSelection m_selection;
    SelectTool m_tool{m_canvas, m_selection};
};

constexpr FeatureKey FirstRoad{1, 1};
constexpr FeatureKey SecondRoad{1, 2};
constexpr FeatureKey Lake{2, 1};

} // namespace

TEST_F(SelectToolTest, AClickSelectsTheTopmostFeatureInPlaceOfOthers)
{
    Click(20, 20);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(FirstRoad));
    Click(40, 40);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(Lake));
    EXPECT_EQ(m_status, "Selected features: 1");
}

TEST_F(SelectToolTest, CtrlAddsAndTakesAway)
{
    Click(20, 20);
    Click(70, 20, Qt::ControlModifier);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(FirstRoad, SecondRoad));
    Click(20, 20, Qt::ControlModifier);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(SecondRoad));
    Click(95, 95, Qt::ControlModifier);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(SecondRoad));
}

TEST_F(SelectToolTest, AClickBesideEverythingClearsAndSaysSo)
{
    Click(20, 20);
    Click(95, 95);
    EXPECT_THAT(m_selection.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "No layer here.");
}

TEST_F(SelectToolTest, ALayerThatIsNotSelectableIsPassedOver)
{
    m_roads.flags.selectable = false;
    Show({m_roads, m_lakes});
    Click(20, 20);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(Lake));
    Click(70, 20);
    EXPECT_THAT(m_selection.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "Roads is here but not selectable.");
}

TEST_F(SelectToolTest, ADragSelectsAllThatItsRectangleTouches)
{
    Drag({0, 0}, {90, 50});
    EXPECT_THAT(m_selection.Keys(), ElementsAre(FirstRoad, SecondRoad, Lake));
    Drag({95, 50}, {50, 0}); // drawn from the other corner
    EXPECT_THAT(m_selection.Keys(), ElementsAre(SecondRoad));
    Drag({0, 0}, {8, 8}, Qt::ControlModifier);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(SecondRoad, Lake));
}

TEST_F(SelectToolTest, ARectangleAroundNothingClearsAndSaysSo)
{
    Click(20, 20);
    Drag({85, 85}, {99, 99});
    EXPECT_THAT(m_selection.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "No selectable feature in the rectangle.");
}

TEST_F(SelectToolTest, TheRectangleIsSeenWhileItIsDrawn)
{
    const QColor before = ColourAt(95, 60);
    BeginDrag({90, 90}, {99, 50});
    EXPECT_NE(ColourAt(95, 60), before);
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(99, 50));
    EXPECT_EQ(ColourAt(95, 60), before);
}

TEST_F(SelectToolTest, EscGivesUpTheRectangleFirstAndThenTheSelection)
{
    Click(20, 20);
    BeginDrag({60, 0}, {90, 50});
    Press(Qt::Key_Escape);
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(90, 50));
    EXPECT_THAT(m_selection.Keys(), ElementsAre(FirstRoad));
    Press(Qt::Key_Escape);
    EXPECT_THAT(m_selection.Keys(), IsEmpty());
}

TEST_F(SelectToolTest, TheSelectionIsTheSameThroughPanAndZoom)
{
    Click(20, 20);
    m_canvas.ZoomIn();
    m_canvas.SetTool(nullptr);
    EXPECT_THAT(m_selection.Keys(), ElementsAre(FirstRoad));
}

TEST_F(SelectToolTest, GroupsTheDigitsOfALargeNumberForTheUser)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    FeatureBuilder many;
    for (int number = 0; number < 1234; ++number)
        many.Square(10, 10, 20);
    Show({NamedLayer(3, "Fields", many.Done())});
    Drag({0, 0}, {40, 40});
    EXPECT_EQ(m_status, "Selected features: 1,234");
    QLocale::setDefault(before);
}

} // namespace Orvane
