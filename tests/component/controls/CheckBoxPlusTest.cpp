// SPDX-License-Identifier: MIT
#include "component/controls/CheckBoxPlus.h"

#include "component/controls/ControlsTestSupport.h"
#include "component/controls/InnerCheckBox.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

// Writes down the events of a box in the order in which they come.
class EventLog
{
public:
    explicit EventLog(CheckBoxPlus& box)
    {
        QObject::connect(&box, &CheckBoxPlus::Click, [this] { Add("Click"); });
        QObject::connect(&box, &CheckBoxPlus::DblClick, [this] { Add("DblClick"); });
        QObject::connect(&box, &CheckBoxPlus::KeyDown, [this](qint16& code, qint16& shift) {
            Add("KeyDown", code, shift);
        });
        QObject::connect(&box, &CheckBoxPlus::KeyPress, [this](qint16& ascii) { Add("KeyPress", ascii); });
        QObject::connect(
            &box, &CheckBoxPlus::KeyUp, [this](qint16& code, qint16& shift) { Add("KeyUp", code, shift); });
        QObject::connect(
            &box, &CheckBoxPlus::MouseDown,
            [this](qint16& button, qint16& shift, float&, float&) { Add("MouseDown", button, shift); });
        QObject::connect(&box, &CheckBoxPlus::MouseUp, [this](qint16& button, qint16& shift, float&, float&) {
            Add("MouseUp", button, shift);
        });
        QObject::connect(&box, &CheckBoxPlus::PropertyChanged, [this](const QString& key) {
            entries.push_back("changed " + key.toStdString());
        });
    }

    std::vector<std::string> entries;

private:
    template <typename... Arguments> void Add(std::string name, Arguments... arguments)
    {
        ((name += " " + std::to_string(arguments)), ...);
        entries.push_back(name);
    }
};

class CheckBoxPlusTest : public testing::Test
{
protected:
    CheckBoxPlusTest()
    {
        m_window.resize(300, 200);
        m_box.setGeometry(10, 10, 200, 30);
        m_box.setCaption("&Visible");
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QCheckBox* Inner() { return m_box.findChild<QCheckBox*>("Check1"); }
    void Click(Qt::MouseButton button = Qt::LeftButton) { QTest::mouseClick(Inner(), button); }
    std::vector<int> ValuesAfterClicks(int count)
    {
        std::vector<int> values;
        for (int click = 0; click < count; ++click) {
            Click();
            values.push_back(m_box.Value());
        }
        return values;
    }

    QWidget m_window;
    CheckBoxPlus m_box{&m_window};
};

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

TEST_F(CheckBoxPlusTest, AMouseClickRaisesItsEventsInOrder)
{
    EventLog log(m_box);
    Click();
    EXPECT_THAT(log.entries, ElementsAre("MouseDown 1 0", "Click", "MouseUp 1 0"));
}

TEST_F(CheckBoxPlusTest, AKeyRaisesItsEventsInOrder)
{
    EventLog log(m_box);
    QTest::keyClick(Inner(), Qt::Key_Space);
    EXPECT_THAT(log.entries, ElementsAre("KeyDown 32 0", "KeyPress 32", "KeyUp 32 0", "Click"));
}

TEST_F(CheckBoxPlusTest, AKeyThatTypesNothingIsNoKeyPress)
{
    EventLog log(m_box);
    QTest::keyClick(Inner(), Qt::Key_F2);
    EXPECT_THAT(log.entries, ElementsAre("KeyDown 113 0", "KeyUp 113 0"));
}

TEST_F(CheckBoxPlusTest, ModifiersAreReportedAsKeysAndAsTheShiftArgument)
{
    EventLog log(m_box);
    QTest::keyClick(Inner(), Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_THAT(log.entries, ElementsAre("KeyDown 16 1", "KeyDown 113 1", "KeyUp 113 1", "KeyUp 16 0"));
}

TEST_F(CheckBoxPlusTest, AListenerThatClearsTheKeyCodeKeepsTheKeyFromTheBox)
{
    QObject::connect(&m_box, &CheckBoxPlus::KeyDown, [](qint16& code, qint16&) { code = 0; });
    EventLog log(m_box);
    QTest::keyClick(Inner(), Qt::Key_Space);

    EXPECT_EQ(m_box.Value(), 0);
    EXPECT_THAT(log.entries, ElementsAre("KeyDown 0 0", "KeyUp 32 0"));
}

TEST_F(CheckBoxPlusTest, AListenerThatClearsTheCharacterKeepsTheKeyFromTheBox)
{
    QObject::connect(&m_box, &CheckBoxPlus::KeyPress, [](qint16& ascii) { ascii = 0; });
    QTest::keyClick(Inner(), Qt::Key_Space);
    EXPECT_EQ(m_box.Value(), 0);
}

TEST_F(CheckBoxPlusTest, MousePositionsAreTwipsAndMayBeChanged)
{
    std::vector<float> seen;
    QObject::connect(&m_box, &CheckBoxPlus::MouseDown, [](qint16&, qint16&, float& x, float&) { x += 1; });
    QObject::connect(&m_box, &CheckBoxPlus::MouseDown, [&](qint16&, qint16&, float& x, float& y) {
        seen = {x, y};
    });
    QTest::mousePress(Inner(), Qt::LeftButton, {}, QPoint(20, 7));
    QTest::mouseRelease(Inner(), Qt::LeftButton);

    const double twips = 1440.0 / m_box.logicalDpiX();
    EXPECT_THAT(seen, ElementsAre(float(20 * twips + 1), float(7 * twips)));
}

TEST_F(CheckBoxPlusTest, MouseMovesAreReportedWithAndWithoutAButton)
{
    std::vector<int> buttons;
    QObject::connect(&m_box, &CheckBoxPlus::MouseMove, [&](qint16& button, qint16&, float&, float&) {
        buttons.push_back(button);
    });
    const auto move = [this](Qt::MouseButtons down) {
        QMouseEvent event(
            QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, down, Qt::NoModifier);
        QApplication::sendEvent(Inner(), &event);
    };
    move(Qt::NoButton);
    move(Qt::LeftButton | Qt::RightButton);

    EXPECT_THAT(buttons, ElementsAre(0, 3));
    EXPECT_TRUE(Inner()->hasMouseTracking());
}

TEST_F(CheckBoxPlusTest, SettingTheValueRaisesClickOnceWhenItChanges)
{
    EventLog log(m_box);
    m_box.setValue("2");
    m_box.setValue("2");

    EXPECT_EQ(m_box.Value(), 2);
    EXPECT_THAT(log.entries, ElementsAre("Click", "changed Value", "changed Value"));
}

TEST_F(CheckBoxPlusTest, TheTextOfAValueIsRoundedHalfToEven)
{
    m_box.setValue("1.5");
    EXPECT_EQ(m_box.Value(), 2);
    m_box.setValue("0.5");
    EXPECT_EQ(m_box.Value(), 0);
}

TEST_F(CheckBoxPlusTest, ATextThatIsNoNumberIsATypeMismatchAndChangesNothing)
{
    m_box.setValue(1);
    EventLog log(m_box);
    EXPECT_EQ(ErrorNumberOf([this] { m_box.setValue("greyed"); }), typeMismatch);
    EXPECT_EQ(ErrorNumberOf([this] { m_box.setValue(""); }), typeMismatch);
    EXPECT_EQ(m_box.Value(), 1);
    EXPECT_THAT(log.entries, ElementsAre());
}

TEST_F(CheckBoxPlusTest, AValueThatNoCheckBoxHasIsRefused)
{
    EXPECT_EQ(ErrorNumberOf([this] { m_box.setValue("3"); }), subscriptOutOfRange);
    EXPECT_EQ(ErrorNumberOf([this] { m_box.setValue("-1"); }), subscriptOutOfRange);
    EXPECT_EQ(ErrorNumberOf([this] { m_box.setValue("40000"); }), overflow);
    EXPECT_EQ(m_box.Value(), 0);
}

TEST_F(CheckBoxPlusTest, EachSetterReportsItsKeyEveryTime)
{
    EventLog log(m_box);
    m_box.setBackColor(0xFF);
    m_box.setForeColor(0xFF00);
    m_box.setCaption("Locked");
    m_box.setEnabled(true);
    m_box.setFont(QFont());
    m_box.setCycleMode(0);

    EXPECT_THAT(
        log.entries,
        ElementsAre(
            "changed BackColor", "changed ForeColor", "changed Caption", "changed Enabled", "changed Font",
            "changed CycleMode"));
}

TEST_F(CheckBoxPlusTest, AClickReportsNoPropertyBecauseTheValueIsNotSaved)
{
    QSignalSpy changes(&m_box, &CheckBoxPlus::PropertyChanged);
    Click();
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(CheckBoxPlusTest, EventsAreDeclaredInTheirOrder)
{
    const QMetaObject& meta = CheckBoxPlus::staticMetaObject;
    std::vector<std::string> names;
    for (int method = meta.methodOffset(); method < meta.methodCount(); ++method) {
        if (meta.method(method).methodType() == QMetaMethod::Signal)
            names.push_back(meta.method(method).name().toStdString());
    }
    names.resize(8);
    EXPECT_THAT(
        names,
        ElementsAre(
            "Click", "DblClick", "KeyDown", "KeyPress", "KeyUp", "MouseDown", "MouseMove", "MouseUp"));
}

TEST_F(CheckBoxPlusTest, ACycleModeBeyond16BitsOverflows)
{
    EXPECT_EQ(ErrorNumberOf([this] { m_box.setCycleMode(40000); }), overflow);
    EXPECT_EQ(m_box.CycleMode(), 0);
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
        QEvent::MouseButtonRelease, QPointF(3, 3), inner->mapToGlobal(QPointF(3, 3)), Qt::LeftButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(inner, &up);
    EXPECT_TRUE(watched.isNull());
}

TEST_F(CheckBoxPlusTest, WhatAListenerRaisesIsToldToThePersonAndGoesNoFurther)
{
    QObject::connect(&m_box, &CheckBoxPlus::Click, [] {
        throw RunTimeError(ErrorNumber::DatabaseFailure, "the layer table is gone");
    });
    QString told;
    QTimer::singleShot(0, [&] {
        QWidget* message = QApplication::activeModalWidget();
        ASSERT_NE(message, nullptr);
        told = message->property("text").toString();
        message->close();
    });
    EXPECT_NO_THROW(Click());
    EXPECT_EQ(told, "the layer table is gone");
}

} // namespace

} // namespace Orvane::Testing
