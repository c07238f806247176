// SPDX-License-Identifier: MIT
#include "component/controls/WheelNeedsFocus.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class WheelNeedsFocusTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(list);
        layout->addWidget(entry);
        list->addItems({"one", "two", "three"});
        new WheelNeedsFocus(*list);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        entry->setFocus();
    }

    /// False when the list leaves the wheel event to its parent.
    bool TakesTheWheel()
    {
        const QPointF place = list->rect().center();
        QWheelEvent event(
            place, list->mapToGlobal(place.toPoint()), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(list, &event);
        return event.isAccepted();
    }

    QWidget window;
    QComboBox* list = new QComboBox;
    QLineEdit* entry = new QLineEdit;
};

TEST_F(WheelNeedsFocusTest, LeavesTheWheelToTheParentWithoutTheFocus)
{
    EXPECT_FALSE(TakesTheWheel());
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_FALSE(list->hasFocus());
}

TEST_F(WheelNeedsFocusTest, ChangesTheControlThatHasTheFocus)
{
    list->setFocus();
    EXPECT_TRUE(TakesTheWheel());
    EXPECT_EQ(list->currentIndex(), 1);
}

TEST_F(WheelNeedsFocusTest, TheWheelDoesNotGiveTheFocus)
{
    EXPECT_FALSE((list->focusPolicy() & Qt::WheelFocus) == Qt::WheelFocus);
    EXPECT_TRUE(list->focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(list->focusPolicy() & Qt::ClickFocus);
}

TEST_F(WheelNeedsFocusTest, LeavesAFocusPolicyThatKnowsNoWheel)
{
    list->setFocusPolicy(Qt::TabFocus);
    new WheelNeedsFocus(*list);
    EXPECT_EQ(list->focusPolicy(), Qt::TabFocus);
}

} // namespace

} // namespace Orvane::Testing
