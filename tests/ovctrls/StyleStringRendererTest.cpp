// SPDX-License-Identifier: MIT
#include "ovctrls/StyleStringRenderer.h"

#include "samples/StyleStrings.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace Orvane {

namespace {

const QColor paper(250, 250, 250);
const QColor ink(10, 20, 30);

// Paints items of 160 by 20 pixels at (20, 10) into a picture that leaves room around them.
class StyleStringRendererTest : public testing::Test
{
protected:
    QImage Paint(const QString& item)
    {
        QImage picture(200, 40, QImage::Format_RGB32);
        picture.fill(paper);
        QPainter painter(&picture);
        m_renderer.Paint(painter, m_item, item, {m_font, ink, m_tabColumn});
        return picture;
    }
    QString Line(qint16 style, qint16 thickness)
    {
        return m_strings.LineItemText({style, thickness}, {18, 138, 9});
    }

    StyleStringRenderer m_renderer{"@"};
    StyleStrings m_strings{"@", {"Transparent", "<none>", "mm", "pixels", "Custom Line Style..."}};
    QFont m_font = QApplication::font();
    QRect m_item{20, 10, 160, 20};
    int m_tabColumn = 0;
};

// The colour at a place within the item.
QColor At(const QImage& picture, int x, int y)
{
    return picture.pixelColor(20 + x, 10 + y);
}

bool HasInk(const QImage& picture, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (picture.pixelColor(x, y) != paper)
                return true;
        }
    }
    return false;
}

std::vector<int> InkedRows(const QImage& picture, int x)
{
    std::vector<int> rows;
    for (int y = 0; y < 20; ++y) {
        if (At(picture, x, y) != paper)
            rows.push_back(y);
    }
    return rows;
}

TEST_F(StyleStringRendererTest, ASwatchFillsItsAreaOnePixelBelowTheTop)
{
    const QImage picture = Paint(m_strings.ColourItem(255, {138, 14}));

    EXPECT_EQ(At(picture, 60, 0), paper);
    EXPECT_EQ(At(picture, 60, 1), QColor(255, 0, 0));
    EXPECT_EQ(At(picture, 137, 13), QColor(255, 0, 0));
    EXPECT_EQ(At(picture, 139, 7), paper);
    EXPECT_EQ(At(picture, 60, 15), paper);
}

TEST_F(StyleStringRendererTest, ASwatchThatThePaperWouldSwallowHasAFaintOutline)
{
    const QImage picture = Paint(m_strings.ColourItem(0xFFFFFF, {138, 14}));

    EXPECT_LT(At(picture, 60, 1).lightness(), 200);
    EXPECT_LT(At(picture, 137, 13).lightness(), 200);
    EXPECT_EQ(At(picture, 60, 7), QColor(255, 255, 255));
}

TEST_F(StyleStringRendererTest, ABlackSwatchIsBlackWhateverTheTextColour)
{
    EXPECT_EQ(At(Paint(m_strings.ColourItem(0, {138, 14})), 60, 7), QColor(0, 0, 0));
}

TEST_F(StyleStringRendererTest, ASolidLineHasExactlyItsThickness)
{
    EXPECT_EQ(InkedRows(Paint(Line(0, -2)), 60), (std::vector<int>{8, 9}));
    EXPECT_EQ(InkedRows(Paint(Line(0, -5)), 60), (std::vector<int>{7, 8, 9, 10, 11}));
}

TEST_F(StyleStringRendererTest, TheThinnestLineIsOnePixelHigh)
{
    EXPECT_EQ(InkedRows(Paint(Line(0, 0)), 60), std::vector<int>{9});
}

TEST_F(StyleStringRendererTest, ALineIsInTheTextColourSoThatADarkListShowsIt)
{
    EXPECT_EQ(At(Paint(Line(0, -3)), 60, 9), ink);
    EXPECT_EQ(At(Paint(Line(0, 0)), 60, 9), ink);
}

TEST_F(StyleStringRendererTest, PatternedLinesHaveGapsAndDifferFromOneAnother)
{
    std::set<QString> seen;
    for (qint16 style = 1; style <= 14; ++style) {
        const QImage picture = Paint(Line(style, 0));
        QString pattern;
        for (int x = 0; x < 138; ++x)
            pattern += At(picture, x, 9) == paper ? '.' : '#';
        EXPECT_TRUE(pattern.contains('.') && pattern.contains('#')) << style;
        seen.insert(pattern);
    }
    EXPECT_EQ(seen.size(), 14u);
}

TEST_F(StyleStringRendererTest, WhatFollowsATabStartsInTheTabColumn)
{
    m_tabColumn = 70;
    const QImage picture = Paint(Line(0, 2));

    EXPECT_TRUE(HasInk(picture, QRect(20, 10, 40, 20)));
    EXPECT_EQ(At(picture, 69, 9), paper);
    EXPECT_EQ(At(picture, 70, 9), ink);
    EXPECT_EQ(At(Paint(Line(0, 0)), 69, 9), paper);
}

TEST_F(StyleStringRendererTest, ALabelWiderThanTheTabColumnPushesTheDrawingOn)
{
    const QString item = Line(0, -100);
    const int label = m_renderer.LabelWidth(item, m_font);
    const QImage picture = Paint(item);

    EXPECT_EQ(label, QFontMetrics(m_font).horizontalAdvance("100 pixels  "));
    EXPECT_EQ(At(picture, label, 9), ink);
    EXPECT_EQ(At(picture, label - 1, 2), paper);
}

TEST_F(StyleStringRendererTest, NothingIsPaintedOutsideTheItem)
{
    for (const QString& item :
         {QString("@DRB=255:P=255:M-99,-99:F999,-99,999,999,-99,999."), QString(200, 'W'),
          QString("@DRP=0/0/30/:M-50,-2:D500,-2,500,50.")}) {
        const QImage picture = Paint(item);
        EXPECT_TRUE(HasInk(picture, m_item));
        EXPECT_FALSE(HasInk(picture, QRect(0, 0, 200, 10)));
        EXPECT_FALSE(HasInk(picture, QRect(0, 30, 200, 10)));
        EXPECT_FALSE(HasInk(picture, QRect(0, 0, 20, 40)));
        EXPECT_FALSE(HasInk(picture, QRect(180, 0, 20, 40)));
    }
}

TEST_F(StyleStringRendererTest, AUserDrawnItemIsLeftBlank)
{
    EXPECT_TRUE(m_renderer.IsUserDrawn("@UD."));
    EXPECT_FALSE(m_renderer.IsUserDrawn("UD."));
    EXPECT_FALSE(HasInk(Paint("@UD."), QRect(0, 0, 200, 40)));
}

TEST_F(StyleStringRendererTest, AnInstalledFontChangesTheTextAndAnUnknownOneDoesNot)
{
    const QImage plain = Paint("Custom");
    EXPECT_EQ(Paint("@FCNo Such Face At All,30,.Custom"), plain);
    EXPECT_NE(Paint("@FC" + QFontInfo(m_font).family() + ",14,.Custom"), plain);
    EXPECT_EQ(Paint("@FC" + QFontInfo(m_font).family() + ",0,.Custom").size(), plain.size());
}

TEST_F(StyleStringRendererTest, AForeColourColoursTextAndMakesColourZeroBlack)
{
    const QImage red = Paint("@FG=255.WWWW");
    bool hasRed = false;
    for (int x = 0; x < 40; ++x)
        hasRed = hasRed || (At(red, x, 10).red() > 200 && At(red, x, 10).green() < 60);
    EXPECT_TRUE(hasRed);
    EXPECT_EQ(At(Paint("@FG=255.@DRB=0:M0,0:F9,0,9,9,0,9."), 4, 4), QColor(0, 0, 0));
}

TEST_F(StyleStringRendererTest, APenWithoutALineDrawsNothing)
{
    EXPECT_FALSE(HasInk(Paint("@DRP=0/15/1/:M0,5:D50,5."), m_item));
}

TEST_F(StyleStringRendererTest, PlainTextLeavesOutTheCommands)
{
    EXPECT_EQ(m_renderer.PlainText(Line(0, 2)), "2 mm");
    EXPECT_EQ(m_renderer.PlainText(m_strings.CustomLineCaption()), "Custom Line Style...");
    EXPECT_EQ(m_renderer.PlainText(m_strings.ColourItem(255, {1, 1})), "");
}

TEST_F(StyleStringRendererTest, WithoutATabThereIsNoLabel)
{
    EXPECT_EQ(m_renderer.LabelWidth("Transparent", m_font), 0);
}

TEST_F(StyleStringRendererTest, ThePainterKeepsItsState)
{
    QImage picture(200, 40, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setPen(Qt::green);
    m_renderer.Paint(painter, m_item, Line(0, 2), {m_font, ink, 0});

    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.hasClipping());
}

TEST_F(StyleStringRendererTest, DamagedItemsArePaintedAsFarAsTheyGo)
{
    std::mt19937 random(7);
    const QStringList whole{
        m_strings.ColourItem(255, {138, 14}), Line(0, -8), Line(3, 0), m_strings.CustomLineCaption()};
    for (int round = 0; round < 4000; ++round) {
        QString item = whole[round % 4];
        for (int change = 0; change < 3; ++change) {
            const auto place = qsizetype(random() % quint32(item.size()));
            item.replace(place, qsizetype(random() % 3), QString(QChar(ushort(32 + random() % 95))));
        }
        ASSERT_FALSE(HasInk(Paint(item), QRect(0, 0, 200, 10))) << item.toStdString();
    }
}

} // namespace

} // namespace Orvane
