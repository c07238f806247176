// SPDX-License-Identifier: MIT
#include "ovctrls/OvCombo.h"

#include <QAbstractItemView>
#include <QImage>
#include <QStyledItemDelegate>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

constexpr int itemCount = 20;

/// A combo box of twenty colours, the second of them selected.
class OvComboListTest : public testing::Test
{
protected:
    OvComboListTest() { Fill(m_combo); }

    static void Fill(OvCombo& combo)
    {
        combo.resize(160, 26);
        combo.SetRenderer(StyleStringRenderer("@"));
        for (int item = 0; item < itemCount; ++item)
            combo.Append(QStringLiteral("@FG=%1.words").arg(item * 10));
        combo.SetListIndex(1);
        combo.SetDropDownRows(5);
        combo.show();
    }

    static QImage Opened(OvCombo& combo)
    {
        combo.showPopup();
        QImage picture = combo.view()->window()->grab().toImage();
        combo.hidePopup();
        return picture;
    }

    OvCombo m_combo;
};

} // namespace

TEST_F(OvComboListTest, TheListIsMadeWhenItIsOpenedFirst)
{
    m_combo.grab();
    EXPECT_EQ(m_combo.findChild<QAbstractItemView*>(), nullptr);
    m_combo.showPopup();
    ASSERT_NE(m_combo.findChild<QAbstractItemView*>(), nullptr);
    EXPECT_EQ(m_combo.view()->currentIndex().row(), 1);
    m_combo.hidePopup();
}

TEST_F(OvComboListTest, TheListLooksTheSameIfAReaderHasAskedForItBefore)
{
    OvCombo asked;
    Fill(asked);
    EXPECT_NE(asked.view(), nullptr);
    EXPECT_EQ(Opened(asked), Opened(m_combo));
}

TEST_F(OvComboListTest, WithAMinimumOfLettersItIsAsWideAsThese)
{
    OvCombo adjusted;
    Fill(adjusted);
    adjusted.Append("@FG=0.words that are wider than the letters");
    m_combo.Append("@FG=0.words that are wider than the letters");
    const QSize all = m_combo.sizeHint();
    adjusted.setMinimumContentsLength(12);
    m_combo.setMinimumContentsLength(12);
    adjusted.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    EXPECT_EQ(m_combo.sizeHint(), adjusted.sizeHint());
    EXPECT_EQ(m_combo.minimumSizeHint(), adjusted.minimumSizeHint());
    EXPECT_LT(m_combo.sizeHint().width(), all.width());
}

TEST_F(OvComboListTest, ADelegateAndAStyleSheetThatAHostHasSetStay)
{
    auto* delegate = new QStyledItemDelegate(&m_combo);
    const QString sheet = "QComboBox { color: red; }";
    m_combo.setItemDelegate(delegate);
    m_combo.setStyleSheet(sheet);
    m_combo.showPopup();
    EXPECT_EQ(m_combo.itemDelegate(), delegate);
    EXPECT_EQ(m_combo.styleSheet(), sheet);
    m_combo.hidePopup();
}

} // namespace Orvane
