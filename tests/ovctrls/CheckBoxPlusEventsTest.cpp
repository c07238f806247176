// SPDX-License-Identifier: MIT
#include "ovctrls/CheckBoxPlusFixture.h"

#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTimer>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

TEST_F(CheckBoxPlusTest, AMouseClickRaisesItsEventsInOrder)
{
    EventLog log(m_box);
    Click();
    EXPECT_THAT(log.entries, ElementsAre("MouseDown 1 0", "Click", "MouseUp 1 0"));
}

TEST_F(CheckBoxPlusTest, TheNextValueIsComputedBeforeMouseDownIsRaised)
{
    QObject::connect(&m_box, &CheckBoxPlus::MouseDown, [this] { m_box.setValue(1); });
    Click();
    EXPECT_EQ(m_box.Value(), 1) << "computed afterwards it would be 0";
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
    EXPECT_EQ(ErrorOf([this] { m_box.setValue("greyed"); }), typeMismatch);
    EXPECT_EQ(ErrorOf([this] { m_box.setValue(""); }), typeMismatch);
    EXPECT_EQ(m_box.Value(), 1);
    EXPECT_THAT(log.entries, ElementsAre());
}

TEST_F(CheckBoxPlusTest, AValueThatNoCheckBoxHasIsRefused)
{
    EXPECT_EQ(ErrorOf([this] { m_box.setValue("3"); }), subscriptOutOfRange);
    EXPECT_EQ(ErrorOf([this] { m_box.setValue("-1"); }), subscriptOutOfRange);
    EXPECT_EQ(ErrorOf([this] { m_box.setValue("40000"); }), overflow);
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
    EXPECT_EQ(ErrorOf([this] { m_box.setCycleMode(40000); }), overflow);
    EXPECT_EQ(m_box.CycleMode(), 0);
}

} // namespace

} // namespace Orvane::Testing
