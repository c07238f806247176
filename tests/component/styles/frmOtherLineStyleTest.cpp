// SPDX-License-Identifier: MIT
#include "component/styles/frmOtherLineStyleFixture.h"

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

} // namespace

TEST_F(frmOtherLineStyleTest, NoThicknessOpensOnMillimetresWith0)
{
    Choose([this] {
        EXPECT_TRUE(Millimetres().isChecked());
        EXPECT_FALSE(Pixels().isChecked());
        EXPECT_EQ(Width().text(), "0");
        EXPECT_TRUE(Width().hasFocus());
    });
}

TEST_F(frmOtherLineStyleTest, ANegativeThicknessOpensOnPixels)
{
    thickness = -4;
    Choose([this] {
        EXPECT_TRUE(Pixels().isChecked());
        EXPECT_EQ(Width().text(), "4");
        EXPECT_FALSE(Ok().isEnabled());
    });
}

TEST_F(frmOtherLineStyleTest, OpensAtThePlaceGivenInTwips)
{
    Choose([this] { EXPECT_EQ(form->pos(), QPoint(300, 200)); });
}

TEST_F(frmOtherLineStyleTest, StaysOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    x = screen.right() * 15;
    y = screen.bottom() * 15;
    Choose([&] {
        EXPECT_TRUE(screen.contains(form->frameGeometry()));
        EXPECT_EQ(form->frameGeometry().right(), screen.right());
    });
}

TEST_F(frmOtherLineStyleTest, IsShownAndClosedByTheHost)
{
    Choose([this] {
        Type("3");
        Click(Ok());
    });
    EXPECT_THAT(ShellCalls(), ElementsAre("ShowModal()", "CloseModal()"));
}

TEST_F(frmOtherLineStyleTest, OkIsDisabledUntilSomethingChanges)
{
    EXPECT_FALSE(Choose([this] {
        EXPECT_FALSE(Ok().isEnabled());
        Click(Ok());
        QTest::keyClick(&Width(), Qt::Key_Return);
        EXPECT_TRUE(form->isVisible());
        Type("3");
        EXPECT_TRUE(Ok().isEnabled());
        Click(Cancel());
    }));
}

TEST_F(frmOtherLineStyleTest, ReopeningDisablesOkAgain)
{
    Choose([this] {
        Type("3");
        Click(Cancel());
    });
    Choose([this] {
        EXPECT_EQ(Width().text(), "0");
        EXPECT_FALSE(Ok().isEnabled());
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, AUnitEnablesOk)
{
    EXPECT_TRUE(Choose([this] {
        Click(Pixels());
        EXPECT_TRUE(Ok().isEnabled());
        Click(Ok());
    }));
    EXPECT_EQ(thickness, 0);
}

TEST_F(frmOtherLineStyleTest, AUnitChosenByKeyEnablesOk)
{
    Choose([this] {
        Millimetres().setFocus();
        QTest::keyClick(&Millimetres(), Qt::Key_Right);
        EXPECT_TRUE(Pixels().isChecked());
        EXPECT_TRUE(Ok().isEnabled());
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, EnterAccepts)
{
    EXPECT_TRUE(Choose([this] {
        Type("9");
        QTest::keyClick(&Width(), Qt::Key_Return);
        EXPECT_FALSE(form->isVisible());
    }));
    EXPECT_EQ(thickness, 9);
}

TEST_F(frmOtherLineStyleTest, EscapeCancels)
{
    thickness = -4;
    EXPECT_FALSE(Choose([this] {
        Type("9");
        QTest::keyClick(&Width(), Qt::Key_Escape);
        EXPECT_FALSE(form->isVisible());
    }));
    EXPECT_EQ(thickness, -4);
}

TEST_F(frmOtherLineStyleTest, CancelLeavesTheThickness)
{
    thickness = 5;
    EXPECT_FALSE(Choose([this] {
        Type("9");
        Click(Cancel());
    }));
    EXPECT_EQ(thickness, 5);
}

TEST_F(frmOtherLineStyleTest, TheCloseButtonOfTheWindowCancels)
{
    EXPECT_FALSE(Choose([this] {
        Type("9");
        form->close();
    }));
    EXPECT_EQ(thickness, 0);
}

TEST_F(frmOtherLineStyleTest, LosingActivationCancels)
{
    thickness = -4;
    EXPECT_FALSE(Choose([this] {
        Type("9");
        QApplication::setActiveWindow(&owner);
        EXPECT_FALSE(form->isVisible());
    }));
    EXPECT_EQ(thickness, -4);
    EXPECT_THAT(ShellCalls(), ElementsAre("ShowModal()", "CloseModal()"));
}

TEST_F(frmOtherLineStyleTest, AMenuOfItsOwnIsNoOtherWindow)
{
    EXPECT_TRUE(Choose([this] {
        Type("9");
        QMenu menu(form.get());
        menu.addAction("Paste");
        menu.popup(form->pos());
        QApplication::setActiveWindow(&menu);
        menu.close();
        QApplication::setActiveWindow(form.get());
        EXPECT_TRUE(form->isVisible());
        Click(Ok());
    }));
}

TEST_F(frmOtherLineStyleTest, ADoubleClickOpensTheHostsValueEntry)
{
    host.Shell().OnEnterValue = [this](QWidget* control) {
        EXPECT_EQ(control, &Width());
        QWidget popup;
        popup.show();
        QApplication::setActiveWindow(&popup);
        control->setProperty("text", "42");
    };
    EXPECT_TRUE(Choose([this] {
        QTest::mouseDClick(&Width(), Qt::LeftButton);
        EXPECT_TRUE(form->isVisible()) << "its own popup is no other window";
        QApplication::setActiveWindow(form.get());
        EXPECT_EQ(Width().text(), "42");
        Click(Ok());
    }));
    EXPECT_EQ(thickness, 42);
    EXPECT_EQ(ShellCalls().value(1), "EnterValue(Integer, 0, 100, Enter Line Width)");
}

TEST_F(frmOtherLineStyleTest, ReturnsFalseWhileItIsOpenAlready)
{
    Choose([this] {
        qint16 other = 3;
        EXPECT_FALSE(form->ChooseLineWidth(other, 0, 0));
        EXPECT_EQ(other, 3);
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, ReturnsFalseWhenItIsDestroyedMeanwhile)
{
    host.Shell().OnShowModal = [this](QWidget*) { form.reset(); };
    thickness = 5;
    EXPECT_FALSE(form->ChooseLineWidth(thickness, x, y));
    EXPECT_EQ(thickness, 5);
}

TEST_F(frmOtherLineStyleTest, AnErrorOfTheHostReachesTheCallerAndItCanBeOpenedAgain)
{
    host.Shell().OnShowModal = [](QWidget*) { throw RunTimeError(10007, "no window"); };
    EXPECT_THROW(form->ChooseLineWidth(thickness, x, y), RunTimeError);
    EXPECT_TRUE(Choose([this] {
        Type("8");
        Click(Ok());
    }));
}

TEST_F(frmOtherLineStyleTest, ACancelThatFailedIsForgottenByOk)
{
    const MessageBoxRobot user{BoxKey::Enter};
    EXPECT_TRUE(Choose([this] {
        Type("8");
        host.Shell().OnCloseModal = [](QWidget*) { throw RunTimeError(10007, "not now"); };
        Click(Cancel());
        EXPECT_TRUE(form->isVisible());
        host.Shell().OnCloseModal = [](QWidget* shown) { shown->hide(); };
        Click(Ok());
    }));
    EXPECT_EQ(thickness, 8);
}

TEST_F(frmOtherLineStyleTest, SpeaksTheLanguageOfTheUser)
{
    const PseudoLanguage pseudo;
    const frmOtherLineStyle translated(&owner);
    EXPECT_EQ(translated.windowTitle(), Pseudo("Line Width"));
    EXPECT_EQ(translated.findChild<QRadioButton*>("optPixels")->text(), Pseudo("pixels"));
    EXPECT_EQ(translated.findChild<QPushButton*>("cmdOK")->text(), Pseudo("OK"));
}

} // namespace Orvane::Testing
