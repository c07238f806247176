// SPDX-License-Identifier: MIT
#include "component/dialog/window/QuickModeToolbar.h"

#include "component/dialog/EditorFixture.h"

#include <QSignalSpy>
#include <QToolButton>

namespace Orvane::Testing {

namespace {

class QuickModes : public EditorFixture
{
protected:
    void SetUp() override { AddTown(); }

    void OpenOn(const QString& layer)
    {
        Open();
        ClickLayer(layer);
    }
};

TEST_F(QuickModes, ShowsTheStoredMode)
{
    OpenOn("Rivers");
    EXPECT_EQ(PressedModes(), 2);
    ClickLayer("Roads");
    EXPECT_EQ(PressedModes(), 1);
}

TEST_F(QuickModes, AClickOnThePressedButtonChangesNothing)
{
    OpenOn("Rivers");
    Click("Backdrop");
    EXPECT_EQ(PressedModes(), 2);
    EXPECT_FALSE(CanApply());
}

TEST_F(QuickModes, AClickPressesOneButtonOnly)
{
    OpenOn("Roads");
    Click("Hidden");
    EXPECT_EQ(PressedModes(), 4);
    EXPECT_TRUE(CanApply());
    Click("Backdrop");
    EXPECT_EQ(PressedModes(), 2);
    Click("Backdrop");
    EXPECT_EQ(PressedModes(), 2);
}

TEST_F(QuickModes, GoingBackToTheStoredModeLeavesTheDialogModified)
{
    OpenOn("Roads");
    Click("Hidden");
    Click("Normal");
    EXPECT_TRUE(CanApply());
    EXPECT_FALSE(IsUnderlined("Normal"));
}

TEST_F(QuickModes, ApplyStoresTheMode)
{
    OpenOn("Roads");
    Click("Hidden");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "OverrideMode"), 2);
    EXPECT_EQ(PressedModes(), 4);
    EXPECT_FALSE(CanApply());
}

TEST_F(QuickModes, CancelShowsTheStoredModeAgain)
{
    OpenOn("Roads");
    Click("Hidden");
    Click("cmdCancel");
    EXPECT_EQ(PressedModes(), 1);
    EXPECT_EQ(Stored(1, "OverrideMode"), 0);
}

TEST_F(QuickModes, AGroupWhoseLayersDifferShowsNone)
{
    Open();
    ClickTab(1);
    ClickGroup("Transport");
    EXPECT_EQ(PressedModes(), 0);
}

TEST_F(QuickModes, AnyClickOnSuchAGroupIsAChange)
{
    Open();
    ClickTab(1);
    for (const char* button : {"Normal", "Backdrop", "Hidden"}) {
        ClickGroup("Transport");
        Click(button);
        EXPECT_TRUE(CanApply()) << button;
        Click("cmdCancel");
        EXPECT_EQ(PressedModes(), 0);
    }
}

TEST_F(QuickModes, AppliesToEveryLayerOfAGroup)
{
    Open();
    ClickTab(1);
    ClickGroup("Transport");
    Click("Hidden");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "OverrideMode"), 2);
    EXPECT_EQ(Stored(2, "OverrideMode"), 2);
    EXPECT_EQ(PressedModes(), 4);
    ClickTab(2);
    ClickLayer("Rivers");
    EXPECT_EQ(PressedModes(), 4);
}

TEST_F(QuickModes, ALayerKeepsItsModeWhenItsGroupIsVarious)
{
    Open();
    ClickTab(1);
    ClickGroup("Transport");
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "OverrideMode"), 0);
    EXPECT_EQ(Stored(2, "OverrideMode"), 1);
}

TEST_F(QuickModes, AreHiddenWhereTheHostKnowsNone)
{
    host.quickModesAllowed = false;
    OpenOn("Roads");
    for (const char* button : {"Normal", "Backdrop", "Hidden"})
        EXPECT_FALSE(Find(button).isVisible()) << button;
}

TEST_F(QuickModes, HiddenButtonsStillKeepTheStoredMode)
{
    host.quickModesAllowed = false;
    OpenOn("Rivers");
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(2, "OverrideMode"), 1);
}

TEST(QuickModeToolbarTest, TheImagesHaveTheColourOfTheButtonsText)
{
    QWidget bar;
    std::array<QToolButton*, 3> buttons{new QToolButton(&bar), new QToolButton(&bar), new QToolButton(&bar)};
    const QuickModeToolbar toolbar(bar, buttons);
    buttons[0]->setStyleSheet("color: #ff0000");
    buttons[0]->ensurePolished();
    const QImage image = buttons[0]->icon().pixmap(16).toImage();
    EXPECT_EQ(image.pixelColor(image.rect().center()), QColor(Qt::red));
}

TEST(QuickModeToolbarTest, PressesExactlyTheBitsOfTheMode)
{
    QWidget bar;
    std::array<QToolButton*, 3> buttons{};
    for (QToolButton*& button : buttons) {
        button = new QToolButton(&bar);
        button->setCheckable(true);
    }
    QuickModeToolbar toolbar(bar, buttons);
    const QSignalSpy edits(&toolbar, &QuickModeToolbar::Edited);
    for (qint16 mode = 0; mode < 8; ++mode) {
        toolbar.ShowMode(mode);
        for (int bit = 0; bit < 3; ++bit)
            EXPECT_EQ(buttons[size_t(bit)]->isChecked(), bool(mode & (1 << bit))) << mode;
        EXPECT_EQ(toolbar.ReadMode(), mode);
    }
    EXPECT_EQ(edits.count(), 0);
    toolbar.ShowMode(3);
    buttons[0]->click();
    EXPECT_EQ(toolbar.ReadMode(), 1);
    EXPECT_EQ(edits.count(), 1);
}

} // namespace

} // namespace Orvane::Testing
