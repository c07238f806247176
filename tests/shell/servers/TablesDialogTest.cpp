// SPDX-License-Identifier: MIT
#include "shell/servers/TablesDialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class TablesDialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
    }
    void Click(int row, Qt::KeyboardModifiers keys = {})
    {
        const QPoint place = List()->visualItemRect(List()->item(row)).center();
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, keys, place);
    }
    QListWidget* List() const { return m_dialog.findChild<QListWidget*>("lstTables"); }
    QLineEdit* SearchField() const { return m_dialog.findChild<QLineEdit*>("edtSearch"); }

    TablesDialog m_dialog{{"public.roads", "public.lakes", "town.roads (axis)"}, nullptr};
};

} // namespace

TEST_F(TablesDialogTest, SeveralTablesAreChosenTogether)
{
    Click(0);
    Click(2, Qt::ControlModifier);
    EXPECT_EQ(m_dialog.Chosen(), QStringList({"public.roads", "town.roads (axis)"}));
}

TEST_F(TablesDialogTest, SearchingListsTheTablesWithAllWords)
{
    QTest::keyClicks(SearchField(), "ROADS town");
    EXPECT_TRUE(List()->item(0)->isHidden());
    EXPECT_TRUE(List()->item(1)->isHidden());
    EXPECT_FALSE(List()->item(2)->isHidden());
}

TEST_F(TablesDialogTest, ATableThatIsNoLongerListedIsNotChosen)
{
    const auto* ok = m_dialog.findChild<QDialogButtonBox*>("buttons")->button(QDialogButtonBox::Ok);
    EXPECT_FALSE(ok->isEnabled());
    Click(1);
    EXPECT_TRUE(ok->isEnabled());
    QTest::keyClicks(SearchField(), "roads");
    EXPECT_TRUE(m_dialog.Chosen().isEmpty());
    EXPECT_FALSE(ok->isEnabled());
}

} // namespace Orvane
