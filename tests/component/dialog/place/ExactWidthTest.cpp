// SPDX-License-Identifier: MIT
// These tests run on a screen with a scale of 1.5.
#include "component/dialog/place/ExactWidth.h"

#include "component/dialog/place/WindowGeometry.h"

#include <QCoreApplication>
#include <QResizeEvent>
#include <QWidget>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

/// A window whose window system makes each size that is asked for a pixel narrower.
class RoundedWindow : public QWidget
{
public:
    /// What the window system gave it.
    void Settle()
    {
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        m_isAnswer = !m_isAnswer;
        if (m_isAnswer)
            QMetaObject::invokeMethod(
                this, [this] { resize(width() - 1, height()); }, Qt::QueuedConnection);
    }

private:
    bool m_isAnswer = false;
};

} // namespace

TEST(ScaledScreen, HasAFractionalScale)
{
    ASSERT_EQ(QWidget().devicePixelRatioF(), 1.5);
    EXPECT_EQ(RoundedPixels(QWidget()), 1);
}

TEST(ScaledScreen, AWindowGetsTheWidthThoughTheWindowSystemRoundsIt)
{
    RoundedWindow window;
    ExactWidth width(window);
    window.show();
    window.Settle();
    width.Resize(400);
    window.Settle();
    EXPECT_EQ(window.width(), 400);
}

TEST(ScaledScreen, AWidthThatTheUserChoosesLaterIsLeftAlone)
{
    QWidget window;
    ExactWidth width(window);
    window.show();
    width.Resize(400);
    window.resize(350, 200);
    window.resize(399, 200);
    EXPECT_EQ(window.width(), 399);
}

TEST(ScaledScreen, ARoundedWindowKeepsItsStoredTwips)
{
    QWidget window;
    WindowGeometry geometry(window);
    geometry.Restore({6000, 4500});
    ASSERT_EQ(window.size(), QSize(400, 300));
    window.resize(399, 299);
    EXPECT_EQ(geometry.Current(), (WindowSize{6000, 4500}));
    window.resize(390, 299);
    EXPECT_EQ(geometry.Current(), (WindowSize{5850, 4500}));
}

} // namespace Orvane
