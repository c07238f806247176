// SPDX-License-Identifier: MIT
#include "component/dialog/panel/SettingsScroller.h"

#include "component/dialog/EditorFixture.h"

#include <QScrollBar>
#include <QtTest>

namespace Orvane::Testing {

namespace {

class SettingsScrollerTest : public EditorFixture
{
protected:
    SettingsScroller& Scroller() { return Find<SettingsScroller>("scrSettings"); }
    bool IsSeen(const char* name)
    {
        QWidget& control = Find(name);
        const QRect place(control.mapTo(&Scroller(), QPoint(0, 0)), control.size());
        return Scroller().viewport()->rect().contains(place);
    }
    void OpenLayer(const QString& viewState)
    {
        AddTown();
        StoreViewState(viewState);
        Open();
        ClickLayer("Roads");
        QCoreApplication::processEvents(); // lays out
    }
};

} // namespace

TEST_F(SettingsScrollerTest, TheSettingsAreSeenWholeInTheDesignedSize)
{
    OpenLayer("");
    EXPECT_FALSE(Scroller().verticalScrollBar()->isVisible());
    EXPECT_TRUE(IsSeen("chkVisible"));
    EXPECT_TRUE(IsSeen("framPriority"));
}

TEST_F(SettingsScrollerTest, TheHintThatCoversThemDoesNotMakeTheDialogLower)
{
    AddTown();
    Open();
    const int covered = Form()->sizeHint().height();
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_EQ(Form()->sizeHint().height(), covered);
}

TEST_F(SettingsScrollerTest, ALowDialogScrollsThem)
{
    OpenLayer("9000:6000:LAYERS:EXPANDED");
    EXPECT_TRUE(Scroller().verticalScrollBar()->isVisible());
    EXPECT_FALSE(IsSeen("framPriority"));
}

TEST_F(SettingsScrollerTest, NothingIsCutBesideTheScrollBar)
{
    OpenLayer("9000:6000:LAYERS:EXPANDED");
    EXPECT_GE(Scroller().viewport()->width(), Scroller().widget()->minimumSizeHint().width());
    EXPECT_FALSE(Scroller().horizontalScrollBar()->isVisible());
}

TEST_F(SettingsScrollerTest, TheControlThatTakesTheFocusScrollsIntoView)
{
    OpenLayer("9000:6000:LAYERS:EXPANDED");
    Find("cmdEditMaxScale").setFocus(Qt::TabFocusReason);
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Find("cmdEditPriority").hasFocus());
    EXPECT_TRUE(IsSeen("cmdEditPriority"));
}

} // namespace Orvane::Testing
