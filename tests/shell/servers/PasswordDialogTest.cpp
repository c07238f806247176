// SPDX-License-Identifier: MIT
#include "shell/servers/PasswordDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class PasswordDialogTest : public testing::Test
{
protected:
    void Open(bool wasWrong = false)
    {
        m_dialog
            = std::make_unique<PasswordDialog>(PasswordQuestion{"anna", "<b>team</b>", wasWrong}, nullptr);
        m_dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    QLineEdit* Field() const { return m_dialog->findChild<QLineEdit*>("edtPassword"); }
    QLabel* Label(const char* name) const { return m_dialog->findChild<QLabel*>(QLatin1String(name)); }

    std::unique_ptr<PasswordDialog> m_dialog;
};

} // namespace

TEST_F(PasswordDialogTest, WhatIsTypedIsNotShownAndTakenByEnter)
{
    Open();
    QTest::keyClicks(QApplication::focusWidget(), "secret");
    EXPECT_FALSE(Field()->displayText().contains("secret"));
    QTest::keyClick(Field(), Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog->Password(), "secret");
}

TEST_F(PasswordDialogTest, SaysWhoIsAskedForAsPlainText)
{
    Open();
    EXPECT_EQ(Label("lblQuestion")->text(), "Password of \"anna\" on the server \"<b>team</b>\":");
    EXPECT_EQ(Label("lblQuestion")->textFormat(), Qt::PlainText);
}

TEST_F(PasswordDialogTest, SaysWhenThePasswordBeforeWasWrong)
{
    Open();
    EXPECT_FALSE(Label("lblWrong")->isVisible());
    Open(true);
    EXPECT_TRUE(Label("lblWrong")->isVisible());
}

TEST_F(PasswordDialogTest, EscapeGivesUp)
{
    Open();
    QTest::keyClick(Field(), Qt::Key_Escape);
    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
}

} // namespace Orvane
