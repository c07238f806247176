// SPDX-License-Identifier: MIT
#include "end_to_end/PropertiesOnTheMap.h"

#include "mapkit/canvas/MapCanvas.h"

namespace Orvane {

using namespace Testing;

TEST_F(PropertiesOnTheMap, AllLayersAreThereAtFirst)
{
    for (const qint32 colour : {Green, Blue, Red, Magenta})
        EXPECT_GT(Pixels(colour), 50) << std::hex << colour;
    EXPECT_EQ(Pixels(Yellow), 0) << "lies below the areas";
}

TEST_F(PropertiesOnTheMap, Visible)
{
    Select("areas");
    Click("chkVisible");
    Apply();
    EXPECT_EQ(Pixels(Green), 0);
    EXPECT_GT(Pixels(Yellow), 50) << "what was covered is seen";
    Click("chkVisible");
    Apply();
    EXPECT_GT(Pixels(Green), 50);
}

TEST_F(PropertiesOnTheMap, LineColour)
{
    const int before = Pixels(Red);
    Select("lines");
    Pick("cmbColor0", Black);
    Apply();
    EXPECT_EQ(Pixels(Red), 0);
    EXPECT_EQ(Pixels(Black), before);
}

TEST_F(PropertiesOnTheMap, LineColourOfAnOutline)
{
    Select("areas");
    Pick("cmbColor0", Cyan);
    Apply();
    EXPECT_EQ(Pixels(Blue), 0);
    EXPECT_GT(Pixels(Cyan), 50);
}

TEST_F(PropertiesOnTheMap, FillForeColour)
{
    const int before = Pixels(Green);
    Select("areas");
    Pick("cmbColor1", Cyan);
    Apply();
    EXPECT_NEAR(Pixels(Cyan), before, before / 100);
    EXPECT_EQ(Pixels(Green), 0);
}

TEST_F(PropertiesOnTheMap, TransparentFillForeColour)
{
    Select("areas");
    Pick("cmbColor1", Transparent);
    Pick("cmbColor2", Cyan);
    Apply();
    EXPECT_EQ(Pixels(Green), 0);
    EXPECT_GT(Pixels(Yellow), 50) << "seen through it";
}

TEST_F(PropertiesOnTheMap, FillBackColour)
{
    Select("areas");
    Pick("cmbFillStyles", 5);
    Apply();
    const int fore = Pixels(Green);
    EXPECT_GT(Pixels(Yellow), 50) << "seen through the pattern";
    Pick("cmbColor2", Cyan);
    Apply();
    EXPECT_GT(Pixels(Cyan), 50);
    EXPECT_EQ(Pixels(Green), fore);
    EXPECT_EQ(Pixels(Yellow), 0);
}

TEST_F(PropertiesOnTheMap, FillStyleHollow)
{
    Select("areas");
    Pick("cmbFillStyles", 15);
    Apply();
    EXPECT_EQ(Pixels(Green), 0);
    EXPECT_GT(Pixels(Blue), 50) << "the outline stays";
    EXPECT_GT(Pixels(Yellow), 50);
}

TEST_F(PropertiesOnTheMap, EveryFillPattern)
{
    const int full = Pixels(Green);
    Select("areas");
    for (qint32 pattern = 1; pattern < 32; ++pattern) {
        if (pattern == 15)
            continue;
        Pick("cmbFillStyles", pattern);
        Apply();
        const int share = Pixels(Green);
        EXPECT_GT(share, full / 40) << pattern;
        EXPECT_LT(share, full * 9 / 10) << pattern;
    }
}

TEST_F(PropertiesOnTheMap, LineStyle)
{
    const int solid = Pixels(Red);
    Select("lines");
    for (qint32 style = 1; style <= 4; ++style) {
        Pick("cmbLineStyles", style);
        Apply();
        EXPECT_GT(Pixels(Red), solid / 8) << style;
        EXPECT_LT(Pixels(Red), solid * 9 / 10) << style;
    }
    Pick("cmbLineStyles", 15);
    Apply();
    EXPECT_EQ(Pixels(Red), 0);
}

TEST_F(PropertiesOnTheMap, LineThickness)
{
    const int thinnest = Pixels(Red);
    Select("lines");
    Pick("cmbLineStyles", -5 * 20);
    Apply();
    EXPECT_GE(Pixels(Red), 2 * thinnest);
    EXPECT_LE(Pixels(Red), 8 * thinnest);
}

TEST_F(PropertiesOnTheMap, LineThicknessInMillimetres)
{
    Select("lines");
    EnterThickness("3");
    Apply();
    const double pixels = 3 * m_window->Canvas().logicalDpiX() / 25.4;
    EXPECT_NEAR(ThicknessAt({15, 14}, Red), pixels, 1.5);
    SetScale(1e6);
    m_window->Canvas().SetView(
        MapView({15, 14}, m_window->Canvas().View().UnitsPerPixel(), m_window->Canvas().View().Size()));
    EXPECT_NEAR(ThicknessAt({15, 14}, Red), pixels, 1.5) << "as thick at any scale";
}

TEST_F(PropertiesOnTheMap, UseForSymbols)
{
    const int before = Pixels(Magenta);
    EXPECT_GT(before, 20);
    Select("points");
    Click("chkUseForSymbols");
    Apply();
    EXPECT_LT(Pixels(Magenta), before / 4);
    Click("chkVisible");
    const QImage own = Map();
    Apply();
    EXPECT_NE(Map(), own) << "the symbol was there in a colour of its own";
}

TEST_F(PropertiesOnTheMap, MaximumVisibleScale)
{
    Select("areas");
    Slide("cmdEditMaxScale", {Qt::Key_Home});
    Apply();
    EXPECT_EQ(Pixels(Green), 0) << "farther away than 1:100";
    SetScale(80);
    EXPECT_GT(Pixels(Green) + Pixels(Blue), 50);
    Slide("cmdEditMaxScale", {Qt::Key_End});
    Apply();
    ShowAll();
    EXPECT_GT(Pixels(Green), 50);
}

TEST_F(PropertiesOnTheMap, MinimumVisibleScale)
{
    Select("areas");
    SetScale(40e6);
    EXPECT_GT(Pixels(Green), 50);
    Slide("cmdEditMinScale", {Qt::Key_End});
    Slide("cmdEditMaxScale", {Qt::Key_End}); // it moved along with the minimum
    Apply();
    EXPECT_EQ(Pixels(Green), 0) << "closer than 1:200,000,000";
    SetScale(250e6);
    EXPECT_GT(Pixels(Green) + Pixels(Blue), 0);
    SetScale(40e6);
    Slide("cmdEditMinScale", {Qt::Key_Home});
    Apply();
    EXPECT_GT(Pixels(Green), 50) << "no limit";
}

TEST_F(PropertiesOnTheMap, BothEndsOfTheScaleRangeAreWithoutLimit)
{
    Select("areas");
    Slide("cmdEditMinScale", {Qt::Key_Home, Qt::Key_Right});
    Slide("cmdEditMaxScale", {Qt::Key_End, Qt::Key_Left});
    Apply();
    SetScale(80);
    EXPECT_EQ(Pixels(Green) + Pixels(Blue), 0) << "closer than 1:100";
    SetScale(220e6);
    EXPECT_EQ(Pixels(Green) + Pixels(Blue), 0) << "farther away than 1:200,000,000";
    SetScale(40e6);
    EXPECT_GT(Pixels(Green), 50) << "between the two";
    Slide("cmdEditMinScale", {Qt::Key_Home});
    Slide("cmdEditMaxScale", {Qt::Key_End});
    Apply();
    for (const double scale : {20.0, 80.0, 40e6, 220e6}) {
        SetScale(scale);
        EXPECT_GT(Pixels(Green) + Pixels(Blue), 0) << scale;
    }
}

TEST_F(PropertiesOnTheMap, DrawPriority)
{
    Select("cover");
    Slide("cmdEditPriority", {Qt::Key_Home});
    Apply();
    EXPECT_GT(Pixels(Yellow), 50) << "1 lies on top";
    Slide("cmdEditPriority", {Qt::Key_End});
    Apply();
    EXPECT_EQ(Pixels(Yellow), 0) << "255 lies below";
}

TEST_F(PropertiesOnTheMap, QuickModeBackdrop)
{
    Select("areas");
    Click("Backdrop");
    Apply();
    EXPECT_EQ(Pixels(Green), 0);
    EXPECT_GT(Pixels(Yellow), 50) << "a backdrop lies below everything";
    const QColor pale = Map().pixelColor(m_window->Canvas().View().ToPixel({25, 5}).toPoint());
    EXPECT_EQ(pale.green(), 255);
    EXPECT_GT(pale.red(), 120);
    EXPECT_LT(pale.red(), 240);
}

TEST_F(PropertiesOnTheMap, QuickModeHidden)
{
    Select("areas");
    Click("Hidden");
    Apply();
    EXPECT_EQ(Pixels(Green) + Pixels(Blue), 0);
    Click("Normal");
    Apply();
    EXPECT_GT(Pixels(Green), 50);
}

TEST_F(PropertiesOnTheMap, StyleLabelled)
{
    const QImage before = Map();
    const int blue = Pixels(Blue);
    Select("areas");
    PickStyle("Labelled");
    Apply();
    WaitForAttributes("areas");
    EXPECT_GT(Pixels(Blue), blue + 20) << "letters in the line colour";
    PickStyle("Standard");
    Apply();
    EXPECT_EQ(Map(), before);
}

TEST_F(PropertiesOnTheMap, StyleGraduated)
{
    const int before = Pixels(Green);
    Select("areas");
    PickStyle("Graduated");
    Apply();
    WaitForAttributes("areas");
    EXPECT_GT(Pixels(Green), before / 3) << "East, which is large";
    EXPECT_LT(Pixels(Green), before * 2 / 3) << "West, which is small, is pale";
}

TEST_F(PropertiesOnTheMap, StyleCasedLines)
{
    Select("lines");
    PickStyle("Cased lines");
    Apply();
    EXPECT_GT(Pixels(Cyan), 50) << "the core, in the fill colour";
    EXPECT_GT(Pixels(Red), 50) << "the edges, in the line colour";
}

} // namespace Orvane
