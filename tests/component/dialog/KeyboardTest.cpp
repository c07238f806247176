// SPDX-License-Identifier: MIT
// The use of the dialog without a mouse.
#include "component/dialog/EditorFixture.h"
#include "ovctrls/CheckBoxPlus.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace Orvane::Testing {

namespace {

class Keyboard : public EditorFixture
{
protected:
    void SetUp() override { AddTown(); }

    void OpenOn(const QString& layer)
    {
        Open();
        ClickLayer(layer);
    }

    /// The control that has the focus; of a box inside a control, the control.
    QString Focused()
    {
        const QWidget* focused = Form()->focusWidget();
        const bool isInside = qobject_cast<const CheckBoxPlus*>(focused->parentWidget());
        return (isInside ? focused->parentWidget() : focused)->objectName();
    }

    /// The controls that get the focus in turn with the key, from the tabs back to the tabs.
    QStringList RoundOf(Qt::Key key)
    {
        constexpr int tooMany = 99;
        Find("tsLists").setFocus();
        QStringList round{Focused()};
        do {
            QTest::keyClick(Form()->focusWidget(), key);
            round.append(Focused());
        } while (round.last() != round.first() && round.size() < tooMany);
        return round;
    }
};

TEST_F(Keyboard, EscapeDropsEditsFirstAndClosesOnlyWithoutAny)
{
    OpenOn("Roads");
    Click("chkVisible");
    QTest::keyClick(Form(), Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(CheckState("chkVisible"), 1);
    QTest::keyClick(Form(), Qt::Key_Escape);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Keyboard, EnterNeverClosesTheDialogNorAppliesIt)
{
    OpenOn("Roads");
    Click("chkVisible");
    for (const char* name : {"chkVisible", "tvLayers2", "cboStyle", "tsLists", "cmdResize"}) {
        QTest::keyClick(&Find(name), Qt::Key_Return);
        ASSERT_NE(Form(), nullptr) << name;
        EXPECT_TRUE(Form()->isVisible()) << name;
    }
    EXPECT_EQ(Stored(1, "Visible"), 1);
}

TEST_F(Keyboard, NoButtonAnswersEnterOnBehalfOfTheDialog)
{
    Open();
    for (const QPushButton* button : Form()->findChildren<QPushButton*>())
        EXPECT_FALSE(button->autoDefault() || button->isDefault()) << qPrintable(button->objectName());
}

TEST_F(Keyboard, ApplyLeavesTheFocusWhereItWas)
{
    OpenOn("Roads");
    Form()->activateWindow();
    auto* box = Find("chkVisible").findChild<QCheckBox*>();
    box->setFocus();
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_EQ(Form()->focusWidget(), box);
}

TEST_F(Keyboard, ApplyingByKeyMovesTheFocusToTheList)
{
    OpenOn("Roads");
    Form()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form()));
    Click("chkVisible");
    auto& apply = Find<QPushButton>("cmdApply");
    apply.setFocus();
    QTest::keyClick(&apply, Qt::Key_Space);
    EXPECT_EQ(Form()->focusWidget(), &Find("tvLayers2"));
}

TEST_F(Keyboard, EscapeDropsEditsFromEveryControl)
{
    OpenOn("Roads");
    for (const char* name :
         {"tvLayers2", "chkVisible", "cboStyle", "cmbColor0", "cmdEditMinScale", "lblCode", "tsLists"}) {
        Click("chkLocked");
        ASSERT_TRUE(CanApply()) << name;
        Find(name).setFocus();
        ASSERT_EQ(Focused(), QLatin1String(name));
        Key(Qt::Key_Escape);
        ASSERT_NE(Form(), nullptr) << name;
        EXPECT_TRUE(Form()->isVisible()) << name;
        EXPECT_FALSE(CanApply()) << name;
    }
}

TEST_F(Keyboard, EscapeFromTheNameEditorKeepsTheEdits)
{
    OpenOn("Roads");
    Click("chkLocked");
    QTest::keyClick(&Find("tvLayers2"), Qt::Key_F2);
    QTest::keyClick(&Find("txtNodeName"), Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Keyboard, TheTabKeyReachesEveryControlOnce)
{
    OpenOn("Roads");
    Form()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form()));
    Click("chkVisible");
    QStringList order{"tsLists",       "tvLayers2",       "cmdNewLayer",     "cmdDeleteLayer",
                      "lblCode",       "Normal",          "Backdrop",        "Hidden",
                      "chkVisible",    "chkLocked",       "chkSnapRequired", "chkUseForSymbols",
                      "chkHitable",    "chkSelectable",   "chkEnquirable",   "cboStyle",
                      "cmbColor0",     "cmbLineStyles",   "cmbColor1",       "cmbColor2",
                      "cmbFillStyles", "cmdEditMinScale", "cmdEditMaxScale", "cmdEditPriority",
                      "cmdApply",      "cmdCancel",       "cmdResize",       "tsLists"};
    EXPECT_EQ(RoundOf(Qt::Key_Tab), order);
    std::reverse(order.begin(), order.end());
    EXPECT_EQ(RoundOf(Qt::Key_Backtab), order);
    EditorForm().UnloadWithoutApply();
}

} // namespace

} // namespace Orvane::Testing
