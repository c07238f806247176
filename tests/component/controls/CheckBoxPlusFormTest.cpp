// SPDX-License-Identifier: MIT
#include "component/common/Messages.h"
#include "component/controls/ControlsTestSupport.h"
#include "ovctrls/CheckBoxPlus.h"
#include "ui_CheckBoxPlusForm.h"

#include <QCheckBox>
#include <QTest>

namespace Orvane::Testing {

namespace {

class CheckBoxPlusFormTest : public testing::Test
{
protected:
    CheckBoxPlusFormTest() { m_ui.setupUi(&m_form); }

    QWidget m_form;
    Ui::CheckBoxPlusForm m_ui;
};

TEST_F(CheckBoxPlusFormTest, ADesignerFormSetsItsProperties)
{
    EXPECT_EQ(m_ui.chkVisible->Caption(), "&Visible");
    EXPECT_EQ(m_ui.chkVisible->CycleMode(), 1);
    EXPECT_EQ(m_ui.chkVisible->Value(), 2);
    EXPECT_FALSE(m_ui.chkLocked->Enabled());
    EXPECT_EQ(m_ui.chkLocked->ForeColor(), 255);
}

TEST_F(CheckBoxPlusFormTest, TheFormsTabOrderHolds)
{
    m_form.show();
    m_form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_form));
    m_ui.txtName->setFocus();
    QTest::keyClick(m_ui.txtName, Qt::Key_Tab);
    EXPECT_TRUE(m_ui.chkVisible->hasFocus());
}

TEST_F(CheckBoxPlusFormTest, CaptionAndAccessibleNameFollowTheLanguage)
{
    auto* inner = m_ui.chkVisible->findChild<QCheckBox*>("Check1");
    {
        const UsingMessages german({{"&Visible", "&Sichtbar"}, {"Layer is visible", "Ebene sichtbar"}});
        TranslateForm(m_form);
        EXPECT_EQ(m_ui.chkVisible->Caption(), "&Sichtbar");
        EXPECT_EQ(inner->accessibleName(), "Ebene sichtbar");
    }
    const UsingMessages french({{"&Visible", "&Affichée"}, {"Layer is visible", "Couche affichée"}});
    TranslateForm(m_form);
    EXPECT_EQ(m_ui.chkVisible->Caption(), "&Affichée");
    EXPECT_EQ(inner->accessibleName(), "Couche affichée");
}

} // namespace

} // namespace Orvane::Testing
