// SPDX-License-Identifier: MIT
#include "ovctrls/CheckBoxPlusFixture.h"
#include "support/PaintWatch.h"
#include "support/QtMessageGuard.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

TEST(NextCheckValue, FollowsTheTableOfBothCycles)
{
    EXPECT_EQ(NextCheckValue(0, 0), 1);
    EXPECT_EQ(NextCheckValue(1, 0), 0);
    EXPECT_EQ(NextCheckValue(2, 0), 0);
    EXPECT_EQ(NextCheckValue(0, 1), 1);
    EXPECT_EQ(NextCheckValue(1, 1), 2);
    EXPECT_EQ(NextCheckValue(2, 1), 0);
}

TEST(NextCheckValue, AnyOtherValueStays)
{
    for (qint16 mode : {0, 1}) {
        EXPECT_EQ(NextCheckValue(3, mode), 3);
        EXPECT_EQ(NextCheckValue(-1, mode), -1);
    }
}

TEST_F(CheckBoxPlusTest, TwoStateClicksToggle)
{
    EXPECT_THAT(ValuesAfterClicks(4), ElementsAre(1, 0, 1, 0));
}

TEST_F(CheckBoxPlusTest, ATwoStateClickOnAGreyedBoxUnchecksIt)
{
    m_box.setValue(2);
    EXPECT_THAT(ValuesAfterClicks(3), ElementsAre(0, 1, 0));
}

TEST_F(CheckBoxPlusTest, ThreeStateClicksGoThroughAllStates)
{
    m_box.setCycleMode(1);
    m_box.setValue(1);
    EXPECT_THAT(ValuesAfterClicks(4), ElementsAre(2, 0, 1, 2));
}

TEST_F(CheckBoxPlusTest, AnUnknownCycleModeIsKeptAndTogglesTwoStates)
{
    m_box.setCycleMode(7);
    EXPECT_EQ(m_box.CycleMode(), 7);
    EXPECT_THAT(ValuesAfterClicks(3), ElementsAre(1, 0, 1));
}

TEST_F(CheckBoxPlusTest, TheValueIsSetWhenTheButtonGoesUp)
{
    QTest::mousePress(Inner(), Qt::LeftButton);
    EXPECT_EQ(m_box.Value(), 0);
    QTest::mouseRelease(Inner(), Qt::LeftButton);
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, TheNextValueIsComputedWhenTheButtonGoesDown)
{
    QTest::mousePress(Inner(), Qt::LeftButton);
    m_box.setValue(1);
    QTest::mouseRelease(Inner(), Qt::LeftButton);
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, AButtonThatGoesUpOutsideTheBoxSetsTheValueAllTheSame)
{
    QTest::mousePress(Inner(), Qt::LeftButton);
    QTest::mouseMove(Inner(), QPoint(-50, 120));
    QTest::mouseRelease(Inner(), Qt::LeftButton, {}, QPoint(-50, 120));
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, AMouseUpAloneUnchecksAFreshBox)
{
    m_box.setValue(2);
    QTest::mouseRelease(Inner(), Qt::LeftButton);
    EXPECT_EQ(m_box.Value(), 0);
}

TEST_F(CheckBoxPlusTest, AMouseUpAloneSetsTheLastNextValue)
{
    Click();
    m_box.setValue(2);
    QTest::mouseRelease(Inner(), Qt::LeftButton);
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, ItIsPaintedAgainOnlyForAnotherValue)
{
    m_box.setValue(2);
    PaintWatch paints(*Inner());
    m_box.setValue(2);
    EXPECT_EQ(paints.Count(), 0);
    m_box.setValue(1);
    EXPECT_EQ(paints.Count(), 1);
}

TEST_F(CheckBoxPlusTest, ADoubleClickIsTwoClicks)
{
    EventLog log(m_box);
    Click();
    QTest::mouseDClick(Inner(), Qt::LeftButton);
    QTest::mouseRelease(Inner(), Qt::LeftButton);

    EXPECT_EQ(std::count(log.entries.begin(), log.entries.end(), "DblClick"), 0);
    EXPECT_EQ(std::count(log.entries.begin(), log.entries.end(), "Click"), 2);
    EXPECT_EQ(m_box.Value(), 0);
}

TEST_F(CheckBoxPlusTest, AClickNearTheEdgeCounts)
{
    QTest::mouseClick(Inner(), Qt::LeftButton, {}, QPoint(198, 28));
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, OtherButtonsChangeNothingButAreReported)
{
    EventLog log(m_box);
    Click(Qt::RightButton);
    Click(Qt::MiddleButton);

    EXPECT_EQ(m_box.Value(), 0);
    EXPECT_THAT(log.entries, ElementsAre("MouseDown 2 0", "MouseUp 2 0", "MouseDown 4 0", "MouseUp 4 0"));
}

TEST_F(CheckBoxPlusTest, ADisabledBoxIgnoresTheMouse)
{
    EventLog log(m_box);
    m_box.setEnabled(false);
    Click();

    EXPECT_EQ(m_box.Value(), 0);
    EXPECT_THAT(log.entries, ElementsAre("changed Enabled"));
}

TEST_F(CheckBoxPlusTest, TheSpaceBarTogglesTwoStatesInEveryCycleMode)
{
    m_box.setCycleMode(1);
    m_box.setFocus();
    std::vector<int> values;
    for (int press = 0; press < 3; ++press) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        values.push_back(m_box.Value());
    }
    EXPECT_THAT(values, ElementsAre(1, 0, 1));
}

TEST_F(CheckBoxPlusTest, TheSpaceBarUnchecksAGreyedBox)
{
    m_box.setValue(2);
    QTest::keyClick(Inner(), Qt::Key_Space);
    EXPECT_EQ(m_box.Value(), 0);
    QTest::keyClick(Inner(), Qt::Key_Space);
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, TheSpaceBarDoesNotTouchTheNextValueOfTheMouse)
{
    Click();
    QTest::keyClick(Inner(), Qt::Key_Space);
    EXPECT_EQ(m_box.Value(), 0);
    QTest::mouseRelease(Inner(), Qt::LeftButton);
    EXPECT_EQ(m_box.Value(), 1);
}

TEST_F(CheckBoxPlusTest, TheMnemonicTogglesAndFocusesTheBox)
{
    QLineEdit other(&m_window);
    other.show();
    other.setFocus();
    QTest::keyClick(&m_window, Qt::Key_V, Qt::AltModifier);

    EXPECT_TRUE(QTest::qWaitFor([this] { return m_box.Value() == 1; }));
    EXPECT_TRUE(m_box.hasFocus());
}

TEST_F(CheckBoxPlusTest, TheInnerBoxFillsTheControlAtEverySize)
{
    for (const QSize size : {QSize(200, 30), QSize(20, 90), QSize(5, 4), QSize(320, 60)}) {
        m_box.resize(size);
        EXPECT_EQ(Inner()->geometry(), m_box.rect());
    }
}

TEST_F(CheckBoxPlusTest, SizeHintsAreThoseOfTheInnerBox)
{
    EXPECT_EQ(m_box.sizeHint(), Inner()->sizeHint());
    EXPECT_EQ(m_box.minimumSizeHint(), Inner()->minimumSizeHint());
}

TEST_F(CheckBoxPlusTest, ALongerCaptionWidensTheLayoutAround)
{
    QWidget form;
    QVBoxLayout layout(&form);
    auto* box = new CheckBoxPlus;
    box->setCaption("Hit");
    layout.addWidget(box);
    form.show();
    QApplication::processEvents();
    const int before = form.minimumSizeHint().width();
    box->setCaption("A caption that needs much more room");

    EXPECT_TRUE(QTest::qWaitFor([&] { return box->width() >= box->sizeHint().width(); }));
    EXPECT_GT(form.minimumSizeHint().width(), before);
}

TEST_F(CheckBoxPlusTest, FocusBelongsToTheInnerBoxAndTabsInTheFormsOrder)
{
    QLineEdit first(&m_window);
    CheckBoxPlus second(&m_window);
    QLineEdit third(&m_window);
    for (QWidget* widget :
         {static_cast<QWidget*>(&first), static_cast<QWidget*>(&second), static_cast<QWidget*>(&third)})
        widget->show();
    QWidget::setTabOrder(&third, &second);
    QWidget::setTabOrder(&second, &first);
    third.setFocus();
    QTest::keyClick(&third, Qt::Key_Tab);
    EXPECT_TRUE(second.hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(first.hasFocus());
}

TEST_F(CheckBoxPlusTest, AScreenReaderMeetsACheckBoxWithNameAndState)
{
    m_box.setValue(2);
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(Inner());

    EXPECT_EQ(box->role(), QAccessible::CheckBox);
    EXPECT_EQ(box->text(QAccessible::Name), "Visible");
    EXPECT_TRUE(box->state().checkable);
    EXPECT_TRUE(box->state().checkStateMixed);
}

TEST_F(CheckBoxPlusTest, AnAccessibleNameReachesTheInnerBoxThroughThePropertyToo)
{
    m_box.setProperty("accessibleName", "Layer is visible");

    EXPECT_EQ(Inner()->accessibleName(), "Layer is visible");
    EXPECT_EQ(m_box.accessibleName(), "Layer is visible");
}

TEST_F(CheckBoxPlusTest, AnUnderlinedFontUnderlinesTheCaptionAndNothingElse)
{
    const int before = Inner()->font().pointSize();
    QFont font = m_box.Font();
    font.setUnderline(true);
    m_box.setFont(font);

    EXPECT_TRUE(Inner()->font().underline());
    EXPECT_EQ(Inner()->font().pointSize(), before);
}

TEST_F(CheckBoxPlusTest, ADisabledContainerIsNotTheBoxsOwnFlag)
{
    m_window.setEnabled(false);
    EXPECT_TRUE(m_box.Enabled());
    EXPECT_FALSE(Inner()->isEnabled());
    m_box.setEnabled(false);
    EXPECT_FALSE(m_box.Enabled());
    m_window.setEnabled(true);
    EXPECT_FALSE(Inner()->isEnabled());
}

TEST_F(CheckBoxPlusTest, AListenerMayDestroyTheBox)
{
    auto* box = new CheckBoxPlus(&m_window);
    box->show();
    auto* inner = box->findChild<QCheckBox*>("Check1");
    QObject::connect(box, &CheckBoxPlus::Click, [box] { delete box; });
    QTest::mousePress(inner, Qt::LeftButton);
    const QPointer watched(box);
    QMouseEvent up(
        QEvent::MouseButtonRelease, QPointF(3, 3), inner->mapToGlobal(QPoint(3, 3)), Qt::LeftButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(inner, &up);
    EXPECT_TRUE(watched.isNull());
}

TEST_F(CheckBoxPlusTest, WhatAListenerRaisesIsReportedAndGoesNoFurther)
{
    QStringList told;
    m_box.SetErrorReport([&](const std::exception_ptr& error) {
        told << Testing::RaisedBy([&] { std::rethrow_exception(error); })->Description();
    });
    QObject::connect(&m_box, &CheckBoxPlus::Click, [] {
        throw RunTimeError(ErrorNumber::DatabaseFailure, "the layer table is gone");
    });
    EXPECT_NO_THROW(Click());
    EXPECT_EQ(told, QStringList("the layer table is gone"));
}

TEST_F(CheckBoxPlusTest, WithoutAReportWhatAListenerRaisesIsAWarning)
{
    QObject::connect(&m_box, &CheckBoxPlus::Click, [] {
        throw RunTimeError(ErrorNumber::DatabaseFailure, "the layer table is gone");
    });
    const Testing::ExpectedQtWarning warning("A listener of a control raised: the layer table is gone");
    EXPECT_NO_THROW(Click());
}

TEST_F(CheckBoxPlusTest, AListenerMayDestroyTheBoxAndRaise)
{
    auto* box = new CheckBoxPlus(&m_window);
    box->show();
    int told = 0;
    box->SetErrorReport([&](const std::exception_ptr&) { ++told; });
    QObject::connect(box, &CheckBoxPlus::KeyDown, [box] {
        delete box;
        throw RunTimeError(ErrorNumber::DatabaseFailure, "gone");
    });
    QKeyEvent down(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    QApplication::sendEvent(box->findChild<QCheckBox*>("Check1"), &down);
    EXPECT_EQ(told, 1);
}

} // namespace

} // namespace Orvane::Testing
