// SPDX-License-Identifier: MIT
#include "shell/window/ScaleBox.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/drawing/ScaleText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

// A window with a map that is one map unit, here a metre, wide per pixel, and the box.
class ScaleBoxTest : public testing::Test
{
protected:
    ScaleBoxTest()
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(m_canvas);
        m_box = new ScaleBox(*m_canvas, &m_window);
        layout->addWidget(m_box);
        m_window.resize(400, 400);
        m_window.show();
        m_window.activateWindow();
        m_canvas->SetView(MapView({1000, 2000}, 1, m_canvas->size()));
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &m_window; }));
    }

    QString Text() const { return m_box->currentText(); }
    double Scale() const { return m_canvas->ScaleDenominator(); }

    // The user clicks into the box, replaces the text and does not press Enter yet.
    void Type(const QString& text)
    {
        QTest::mouseClick(m_box->lineEdit(), Qt::LeftButton);
        m_box->lineEdit()->selectAll();
        QTest::keyClicks(m_box->lineEdit(), text);
    }
    void Press(Qt::Key key) { QTest::keyClick(m_box, key); }

    QWidget m_window;
    MapCanvas* m_canvas = new MapCanvas;
    ScaleBox* m_box;
};

} // namespace

TEST_F(ScaleBoxTest, FollowsTheScaleOfTheMap)
{
    EXPECT_EQ(Text(), ScaleText(Scale()));
    m_canvas->ZoomIn();
    EXPECT_EQ(Text(), ScaleText(Scale()));
}

TEST_F(ScaleBoxTest, ZoomsAroundTheCentreAtEnter)
{
    Type("1:25 000");
    Press(Qt::Key_Return);
    EXPECT_NEAR(Scale(), 25000, 1e-6);
    EXPECT_NEAR(m_canvas->View().Centre().x(), 1000, 1e-6);
    EXPECT_NEAR(m_canvas->View().Centre().y(), 2000, 1e-6);
    EXPECT_EQ(Text(), ScaleText(25000));
    EXPECT_TRUE(m_canvas->hasFocus());
}

TEST_F(ScaleBoxTest, GivesTheOldTextBackAtEscape)
{
    const QString before = Text();
    const double scale = Scale();
    Type("77");
    EXPECT_EQ(Text(), "77");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(), before);
    EXPECT_EQ(Scale(), scale);
    EXPECT_TRUE(m_canvas->hasFocus());
}

TEST_F(ScaleBoxTest, TellsThatATextIsNoScaleAndKeepsIt)
{
    const QSignalSpy refused(m_box, &ScaleBox::Refused);
    const double scale = Scale();
    Type("large");
    Press(Qt::Key_Return);
    ASSERT_EQ(refused.size(), 1);
    EXPECT_TRUE(refused.first().first().toString().contains("large"));
    EXPECT_EQ(Text(), "large");
    EXPECT_EQ(Scale(), scale);
    EXPECT_TRUE(m_box->lineEdit()->hasFocus());
}

TEST_F(ScaleBoxTest, KeepsWhatIsTypedWhileTheMapMoves)
{
    Type("250");
    m_canvas->ZoomIn();
    EXPECT_EQ(Text(), "250");
}

TEST_F(ScaleBoxTest, ShowsTheScaleAgainWhenItIsLeft)
{
    const QString before = Text();
    Type("250");
    QTest::mouseClick(m_canvas, Qt::LeftButton);
    m_canvas->setFocus();
    EXPECT_EQ(Text(), before);
}

TEST_F(ScaleBoxTest, OffersUsualScales)
{
    const int index = m_box->findText(ScaleText(50000));
    ASSERT_GE(index, 0);
    m_box->showPopup();
    m_box->view()->setCurrentIndex(m_box->model()->index(index, 0));
    QTest::keyClick(m_box->view(), Qt::Key_Return);
    EXPECT_NEAR(Scale(), 50000, 1e-6);
    EXPECT_EQ(Text(), ScaleText(50000));
    m_canvas->ZoomIn();
    EXPECT_EQ(Text(), ScaleText(Scale()));
}

TEST_F(ScaleBoxTest, OpensItsListByAnArrowKeyWithoutZooming)
{
    const double before = Scale();
    Press(Qt::Key_Down);
    EXPECT_EQ(Scale(), before);
    EXPECT_TRUE(m_box->view()->isVisible());
    m_box->hidePopup();
}

TEST_F(ScaleBoxTest, LeavesTheMapAloneWhenTheWheelTurnsOverIt)
{
    const double scale = Scale();
    QWheelEvent event(
        {5, 5}, m_box->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_box, &event);
    EXPECT_EQ(Scale(), scale);
}

} // namespace Orvane
