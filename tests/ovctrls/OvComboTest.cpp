// SPDX-License-Identifier: MIT
#include "ovctrls/OvCombo.h"

#include "samples/StyleStrings.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

class OvComboTest : public testing::Test
{
protected:
    OvComboTest()
    {
        m_combo.resize(160, 26);
        m_combo.SetRenderer(StyleStringRenderer("@"));
    }

    QStringList Items() const
    {
        QStringList items;
        for (int index = 0; index < m_combo.ListCount(); ++index)
            items.append(m_combo.List(index));
        return items;
    }
    QColor Middle() { return m_combo.grab().toImage().pixelColor(60, m_combo.height() / 2); }
    QString Swatch(qint32 colour) { return StyleStrings("@", {}).ColourItem(colour, {138, 19}); }

    /// The first x, from the given one on, at which the item is not blank.
    int FirstInkFrom(int x, int item)
    {
        QImage picture(160, 20, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        m_combo.PaintItem(painter, picture.rect(), item, false);
        painter.end();
        while (x < 159 && picture.pixelColor(x, 10) == QColor(Qt::white))
            ++x;
        return x;
    }

    OvCombo m_combo;
};

TEST_F(OvComboTest, AppendsAndInsertsAndRemembersWhereItPutTheLast)
{
    m_combo.Append("a");
    EXPECT_EQ(m_combo.NewIndex(), 0);
    m_combo.Append("b");
    EXPECT_EQ(m_combo.NewIndex(), 1);
    m_combo.Insert("c", 1);
    EXPECT_EQ(m_combo.NewIndex(), 1);
    m_combo.Insert("d", OvCombo::AtEnd);
    EXPECT_EQ(m_combo.NewIndex(), 3);
    EXPECT_EQ(Items(), (QStringList{"a", "c", "b", "d"}));
}

TEST_F(OvComboTest, APositionOutsideTheListIsItsNearestEnd)
{
    m_combo.Append("a");
    m_combo.Insert("b", 99);
    m_combo.Insert("c", -5);
    EXPECT_EQ(Items(), (QStringList{"c", "a", "b"}));
}

TEST_F(OvComboTest, AddingItemsSelectsNone)
{
    QSignalSpy changes(&m_combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    m_combo.Append("a");
    m_combo.Append("b");

    EXPECT_EQ(m_combo.ListIndex(), -1);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(OvComboTest, TheSelectedItemStaysSelectedWhenOthersAreInsertedBefore)
{
    m_combo.Append("a");
    m_combo.Append("b");
    m_combo.SetListIndex(1);
    m_combo.Insert("c", 0);
    EXPECT_EQ(m_combo.ListIndex(), 2);
}

TEST_F(OvComboTest, AnIndexOutsideTheListIsNotSelected)
{
    m_combo.Append("a");
    m_combo.SetListIndex(0);
    m_combo.SetListIndex(7);
    EXPECT_EQ(m_combo.ListIndex(), 0);
    m_combo.SetListIndex(-1);
    EXPECT_EQ(m_combo.ListIndex(), -1);
}

TEST_F(OvComboTest, ItemsCarryANumber)
{
    m_combo.Append("a");
    m_combo.Append("b");
    m_combo.SetItemData(1, qint32(0xFF000000u));

    EXPECT_EQ(m_combo.ItemData(0), 0);
    EXPECT_EQ(m_combo.ItemData(1), -16777216);
    EXPECT_EQ(m_combo.ItemData(2), 0);
    EXPECT_EQ(m_combo.List(2), "");
}

TEST_F(OvComboTest, ClearingForgetsEverything)
{
    m_combo.Append("a");
    m_combo.SetListIndex(0);
    m_combo.Clear();

    EXPECT_EQ(m_combo.ListCount(), 0);
    EXPECT_EQ(m_combo.ListIndex(), -1);
    EXPECT_EQ(m_combo.NewIndex(), -1);
}

TEST_F(OvComboTest, TheNumberOfDropDownRowsIsAtLeastOne)
{
    m_combo.SetDropDownRows(17);
    EXPECT_EQ(m_combo.DropDownRows(), 17);
    m_combo.SetDropDownRows(-3);
    EXPECT_EQ(m_combo.DropDownRows(), 1);
}

TEST_F(OvComboTest, ItsSizeIsToldInTwips)
{
    m_combo.resize(160, 21);
    EXPECT_EQ(m_combo.WidthInTwips(), 160 * 1440 / m_combo.logicalDpiX());
    EXPECT_EQ(m_combo.HeightInTwips(), 21 * 1440 / m_combo.logicalDpiY());
}

TEST_F(OvComboTest, TheClosedBoxShowsTheSelectedItem)
{
    m_combo.Append(Swatch(0x0000FF));
    m_combo.Append(Swatch(0xFF0000));
    m_combo.SetListIndex(0);
    EXPECT_EQ(Middle(), QColor(255, 0, 0));
    m_combo.SetListIndex(1);
    EXPECT_EQ(Middle(), QColor(0, 0, 255));
}

TEST_F(OvComboTest, TheDropDownListShowsEachItem)
{
    m_combo.Append(Swatch(0x0000FF));
    m_combo.Append(Swatch(0xFF0000));
    m_combo.show();
    m_combo.showPopup();
    const QRect second = m_combo.view()->visualRect(m_combo.model()->index(1, 0));
    const QImage picture = m_combo.view()->viewport()->grab().toImage();

    EXPECT_EQ(picture.pixelColor(second.center()), QColor(0, 0, 255));
    EXPECT_GE(second.height(), m_combo.height() - 6);
    m_combo.hidePopup();
}

TEST_F(OvComboTest, AUserDrawnItemIsPaintedByTheListener)
{
    std::vector<int> asked;
    QObject::connect(&m_combo, &OvCombo::DrawItem, [&](QPainter& painter, int index, const QRect& rectangle) {
        asked.push_back(index);
        painter.fillRect(rectangle, QColor(1, 200, 3));
    });
    m_combo.Append("plain");
    m_combo.Append("@UD.");
    m_combo.SetListIndex(0);
    m_combo.grab();
    EXPECT_TRUE(asked.empty());
    m_combo.SetListIndex(1);
    EXPECT_EQ(Middle(), QColor(1, 200, 3));
    EXPECT_THAT(asked, testing::Each(1));
}

TEST_F(OvComboTest, LabelsOfAllItemsShareOneTabColumn)
{
    const StyleStrings strings("@", {"", "", "mm", "pixels", ""});
    const QString wide = strings.LineItemText({0, -100}, {20, 138, 10});
    const QString narrow = strings.LineItemText({0, 2}, {20, 138, 10});
    m_combo.Append(narrow);
    m_combo.Append(wide);
    const int column = m_combo.fontMetrics().horizontalAdvance("100 pixels  ");
    EXPECT_EQ(FirstInkFrom(column - 20, 0), column);
    m_combo.Clear();
    m_combo.Append(narrow);
    EXPECT_EQ(FirstInkFrom(column - 20, 0), column - 20) << "the narrow label needs less";
}

TEST_F(OvComboTest, AnItemWithoutALabelBeginsAtTheLeft)
{
    const StyleStrings strings("@", {"", "", "mm", "pixels", ""});
    m_combo.Append(strings.LineItemText({0, 0}, {20, 138, 10}));
    m_combo.Append(strings.LineItemText({0, -100}, {20, 138, 10}));
    EXPECT_EQ(FirstInkFrom(0, 0), 0);
}

TEST_F(OvComboTest, AnItemIsReplacedWithItsNumberAndTheSelectionKept)
{
    for (const char* item : {"a", "b", "c"})
        m_combo.Append(item);
    m_combo.SetItemData(1, 7);
    m_combo.SetListIndex(1);
    m_combo.Replace(1, "d");
    EXPECT_THAT(Items(), testing::ElementsAre("a", "d", "c"));
    EXPECT_EQ(m_combo.ItemData(1), 7);
    EXPECT_EQ(m_combo.ListIndex(), 1);
}

TEST_F(OvComboTest, TheSelectedItemStaysSelectedWhenAnotherIsRemoved)
{
    for (const char* item : {"a", "b", "c"})
        m_combo.Append(item);
    m_combo.SetListIndex(1);
    m_combo.Remove(2);
    EXPECT_EQ(m_combo.NewIndex(), -1);
    m_combo.Remove(0);
    EXPECT_THAT(Items(), testing::ElementsAre("b"));
    EXPECT_EQ(m_combo.ListIndex(), 0);
}

TEST_F(OvComboTest, WordsAreForReadersAndSearchesAndCommandsAreNot)
{
    m_combo.Append(Swatch(255));
    m_combo.Append("@FCMS Sans Serif,8,.Custom");
    m_combo.SetItemDescription(0, "Red");

    EXPECT_EQ(m_combo.itemText(0), "Red");
    EXPECT_EQ(m_combo.itemText(1), "Custom");
    EXPECT_EQ(m_combo.List(0), Swatch(255));
}

TEST_F(OvComboTest, AnUnderlinedFontMarksTheClosedBoxAndNotTheList)
{
    m_combo.Append("words");
    m_combo.SetListIndex(0);
    const auto listed = [this] {
        QImage picture(160, 20, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        m_combo.PaintItem(painter, picture.rect(), 0, false);
        return picture;
    };
    const QImage listedBefore = listed();
    const QImage closedBefore = m_combo.grab().toImage();
    QFont mark;
    mark.setUnderline(true);
    m_combo.setFont(mark);

    EXPECT_EQ(listed(), listedBefore);
    EXPECT_NE(m_combo.grab().toImage(), closedBefore);
}

TEST_F(OvComboTest, TheListShowsNoMoreThanItsRows)
{
    for (int item = 0; item < 20; ++item)
        m_combo.Append(QString::number(item));
    m_combo.SetDropDownRows(5);
    m_combo.show();
    m_combo.showPopup();
    const int row = m_combo.view()->visualRect(m_combo.model()->index(0, 0)).height();
    EXPECT_LT(m_combo.view()->viewport()->height(), 6 * row);
    EXPECT_GE(m_combo.view()->viewport()->height(), 5 * row);
    m_combo.hidePopup();
}

TEST_F(OvComboTest, TheSelectionIsSeenAroundAPicture)
{
    QObject::connect(&m_combo, &OvCombo::DrawItem, [](QPainter& painter, int, const QRect& rectangle) {
        painter.fillRect(rectangle, QColor(1, 200, 3));
    });
    m_combo.Append("@UD.");
    m_combo.SetListIndex(0);
    m_combo.show();
    m_combo.showPopup();
    const QRect row = m_combo.view()->visualRect(m_combo.model()->index(0, 0));
    const QImage picture = m_combo.view()->viewport()->grab().toImage();

    EXPECT_EQ(picture.pixelColor(row.center()), QColor(1, 200, 3));
    EXPECT_NE(picture.pixelColor(row.center().x(), row.top()), QColor(1, 200, 3));
    EXPECT_NE(picture.pixelColor(row.center().x(), row.bottom()), QColor(1, 200, 3));
    m_combo.hidePopup();
}

TEST_F(OvComboTest, TypingFindsAnItemByItsWords)
{
    m_combo.Append("@FG=0.black");
    m_combo.Append("@FG=255.red");
    m_combo.show();
    QTest::keyClick(&m_combo, Qt::Key_R);
    EXPECT_EQ(m_combo.ListIndex(), 1);
}

TEST_F(OvComboTest, AnItemWithoutCommandsIsPaintedAsText)
{
    m_combo.Append("words");
    m_combo.addItem("words");
    m_combo.addItem("@FG=255.");
    EXPECT_LT(FirstInkFrom(0, 1), 159);
    EXPECT_LT(FirstInkFrom(0, 2), 159) << "what looks like a command is text here";
    EXPECT_EQ(Items(), (QStringList{"words", "words", "@FG=255."}));
    m_combo.SetListIndex(1);
    const QImage words = m_combo.grab().toImage();
    m_combo.SetListIndex(-1);
    EXPECT_NE(m_combo.grab().toImage(), words);
}

TEST_F(OvComboTest, AnIconIsPaintedBesideTheTextOfAnItemWithoutCommands)
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    m_combo.addItem(red, "words");
    m_combo.addItem("words");
    QImage picture(160, 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    m_combo.PaintItem(painter, picture.rect(), 0, false);
    painter.end();
    EXPECT_EQ(picture.pixelColor(m_combo.iconSize().width() / 2, 10), QColor(Qt::red));
    EXPECT_LT(FirstInkFrom(m_combo.iconSize().width() + 1, 0), 60) << "the words are beside it";
}

TEST_F(OvComboTest, AnItemWithoutCommandsCanBeReplacedByCommands)
{
    m_combo.addItem("words");
    m_combo.Replace(0, Swatch(0x0000FF));
    m_combo.SetListIndex(0);
    EXPECT_EQ(Middle(), QColor(255, 0, 0));
}

TEST_F(OvComboTest, TheModelKeepsItsPromises)
{
    const QAbstractItemModelTester tester(
        m_combo.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_combo.Append("a");
    m_combo.Insert("@UD.", 0);
    m_combo.SetItemData(0, 5);
    m_combo.Clear();
    EXPECT_EQ(m_combo.ListCount(), 0);
}

} // namespace

} // namespace Orvane
