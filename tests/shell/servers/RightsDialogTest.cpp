// SPDX-License-Identifier: MIT
#include "shell/servers/RightsDialog.h"

#include "shell/servers/ServerTest.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace Orvane {

using namespace Testing;

namespace {

class RightsDialogTest : public ServerTest
{
protected:
    void Open(const QString& place)
    {
        m_dialog = std::make_unique<RightsDialog>(place, m_passwords, nullptr);
        m_dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
        ASSERT_TRUE(QTest::qWaitFor([this] { return IsReady(); }));
    }
    bool IsReady() const { return Button("cmdGive")->isEnabled() || !State().startsWith("Asking"); }
    void Give(int right)
    {
        m_dialog->findChild<QComboBox*>("cmbRight")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), right == 0 ? Qt::Key_Home : Qt::Key_End);
        QTest::mouseClick(Button("cmdGive"), Qt::LeftButton);
    }
    void Accept()
    {
        auto* buttons = m_dialog->findChild<QDialogButtonBox*>("buttons");
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !m_dialog->isVisible(); }));
    }
    QTreeWidget* List() const { return m_dialog->findChild<QTreeWidget*>("lstHolders"); }
    QPushButton* Button(const char* name) const
    {
        return m_dialog->findChild<QPushButton*>(QLatin1String(name));
    }
    QString State() const { return m_dialog->findChild<QLabel*>("lblState")->text(); }

    std::unique_ptr<RightsDialog> m_dialog;
};

} // namespace

TEST_F(RightsDialogTest, ARightIsGivenWhenTheDialogIsAcceptedAndNotBefore)
{
    Open(PlaceOf("Town"));
    EXPECT_EQ(List()->topLevelItemCount(), 0);
    Give(1); // "Everybody" is the first role
    ASSERT_EQ(List()->topLevelItemCount(), 1);
    EXPECT_EQ(List()->topLevelItem(0)->text(0), "Everybody");
    EXPECT_EQ(List()->topLevelItem(0)->text(1), "Edit");
    EXPECT_TRUE(ServerMaps::Holders(PlaceOf("Town"), {}).empty());
    Accept();
    const std::vector<MapHolder> holders = ServerMaps::Holders(PlaceOf("Town"), {});
    ASSERT_EQ(holders.size(), 1U);
    EXPECT_EQ(holders.front().role, "public");
    EXPECT_EQ(holders.front().right, MapRight::Edit);
}

TEST_F(RightsDialogTest, ARoleHasOneRight)
{
    Open(PlaceOf("Town"));
    Give(1);
    Give(0);
    ASSERT_EQ(List()->topLevelItemCount(), 1);
    EXPECT_EQ(List()->topLevelItem(0)->text(1), "Read");
}

TEST_F(RightsDialogTest, ARightIsTakenBack)
{
    ServerMaps::SetHolders(PlaceOf("Town"), {{"public", MapRight::Read}}, {});
    Open(PlaceOf("Town"));
    ASSERT_EQ(List()->topLevelItemCount(), 1);
    EXPECT_FALSE(Button("cmdTakeBack")->isEnabled());
    const QPoint row = List()->visualItemRect(List()->topLevelItem(0)).center();
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseClick(Button("cmdTakeBack"), Qt::LeftButton);
    Accept();
    EXPECT_TRUE(ServerMaps::Holders(PlaceOf("Town"), {}).empty());
}

TEST_F(RightsDialogTest, AServerThatDoesNotAnswerIsToldAndNothingCanBeChanged)
{
    Open("postgresql:///nowhere?host=/nowhere&schema=Town");
    EXPECT_TRUE(State().contains("cannot be reached")) << State().toStdString();
    EXPECT_FALSE(Button("cmdGive")->isEnabled());
}

} // namespace Orvane
