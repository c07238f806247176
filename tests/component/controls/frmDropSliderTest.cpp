// SPDX-License-Identifier: MIT
#include "component/controls/frmDropSlider.h"

#include "component/controls/ControlsTestSupport.h"
#include "component/controls/IUITranslator.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QTimer>

#include <functional>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

// Shows a value in words and writes down what it was asked.
class WordsTranslator : public IUITranslator
{
public:
    QString suffix;
    mutable std::vector<std::string> asked;

private:
    QString IUITranslator_toString(const Value& value) const override
    {
        const QString text = value.IsNull() ? QString("various") : ToText(value);
        asked.push_back(text.toStdString());
        return text + suffix;
    }
    Value IUITranslator_FromString(const QString& text) const override { return ToInt32(text); }
};

class frmDropSliderTest : public testing::Test
{
protected:
    frmDropSliderTest() { m_owner.setGeometry(50, 50, 200, 100); }

    QSlider* Slider() { return m_form.findChild<QSlider*>("sldValue"); }
    QCheckBox* Various() { return m_form.findChild<QCheckBox*>("chkVarious"); }
    QLabel* Label() { return m_form.findChild<QLabel*>("lblValue"); }
    QPushButton* Button(const char* name) { return m_form.findChild<QPushButton*>(name); }

    void Ok() { QTest::mouseClick(Button("cmdOK"), Qt::LeftButton); }
    void Cancel() { QTest::mouseClick(Button("cmdCancel"), Qt::LeftButton); }
    void PressKey(Qt::Key key) { QTest::keyClick(m_form.focusWidget(), key); }
    void ClickHandle()
    {
        QStyleOptionSlider option;
        option.initFrom(Slider());
        option.orientation = Qt::Horizontal;
        option.minimum = Slider()->minimum();
        option.maximum = Slider()->maximum();
        option.sliderPosition = option.sliderValue = Slider()->value();
        option.tickPosition = Slider()->tickPosition();
        option.tickInterval = Slider()->tickInterval();
        const QRect handle = Slider()->style()->subControlRect(
            QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, Slider());
        QTest::mouseClick(Slider(), Qt::LeftButton, {}, handle.center());
    }

    // Opens the popup, does what the person does, and makes sure that it is closed again.
    bool Popup(const std::function<void()>& person)
    {
        QTimer::singleShot(0, &m_form, [&] {
            person();
            m_form.hide();
        });
        return Open();
    }
    bool Open()
    {
        return m_form.Popup(
            &m_owner, m_words, m_x, m_y, "unused", m_value, m_default, m_minimum, m_maximum, m_allowVarious);
    }

    QWidget m_owner;
    frmDropSlider m_form{&m_owner};
    WordsTranslator m_words;
    Value m_value = 7;
    Value m_default = 0;
    Twips m_x = 400 * 15;
    Twips m_y = 200 * 15;
    qint32 m_minimum = 0;
    qint32 m_maximum = 255;
    bool m_allowVarious = true;
};

TEST_F(frmDropSliderTest, OpensWithTheSliderAtTheValue)
{
    Popup([this] {
        EXPECT_EQ(Slider()->value(), 7);
        EXPECT_FALSE(Various()->isChecked());
        EXPECT_EQ(Label()->text(), "7");
        EXPECT_TRUE(m_form.isModal());
        EXPECT_EQ(m_form.parentWidget(), &m_owner);
    });
}

TEST_F(frmDropSliderTest, CancelReturnsFalseAndLeavesTheValue)
{
    m_value = qint16(7);
    EXPECT_FALSE(Popup([this] {
        Slider()->setValue(9);
        Cancel();
        EXPECT_FALSE(m_form.isVisible());
    }));
    EXPECT_THAT(m_value, IsValue(qint16(7)));
}

TEST_F(frmDropSliderTest, OkReturnsTheSlidersValueAsA32BitInteger)
{
    m_value = qint16(7);
    EXPECT_TRUE(Popup([this] {
        for (int step = 0; step < 5; ++step)
            PressKey(Qt::Key_Right);
        Ok();
    }));
    EXPECT_THAT(m_value, IsValue(12));
}

TEST_F(frmDropSliderTest, ANullValueOpensAsVariousAndOkKeepsItNull)
{
    m_value = Value::Null();
    EXPECT_TRUE(Popup([this] {
        EXPECT_TRUE(Various()->isChecked());
        EXPECT_TRUE(Various()->isEnabled());
        EXPECT_EQ(Label()->text(), "various");
        Ok();
    }));
    EXPECT_THAT(m_value, IsNullValue());
}

TEST_F(frmDropSliderTest, ANullValueStandsAtTheDefault)
{
    m_value = Value::Null();
    m_default = 256;
    m_minimum = 1;
    m_maximum = 256;
    Popup([this] {
        EXPECT_EQ(Slider()->value(), 256);
        QTest::mouseClick(Various(), Qt::LeftButton);
        EXPECT_EQ(Label()->text(), "256");
    });
}

TEST_F(frmDropSliderTest, VariousThatIsNotAllowedIsCheckedButDisabledUntilTheSliderMoves)
{
    m_value = Value::Null();
    m_allowVarious = false;
    EXPECT_TRUE(Popup([this] {
        EXPECT_TRUE(Various()->isChecked());
        EXPECT_FALSE(Various()->isEnabled());
        PressKey(Qt::Key_Right);
        EXPECT_FALSE(Various()->isChecked());
        QTest::mouseClick(Various(), Qt::LeftButton);
        EXPECT_FALSE(Various()->isChecked());
        Ok();
    }));
    EXPECT_THAT(m_value, IsValue(1));
}

TEST_F(frmDropSliderTest, CheckingVariousShowsItAndUncheckingTakesTheSliderAgain)
{
    EXPECT_TRUE(Popup([this] {
        QTest::keyClick(Various(), Qt::Key_Space);
        EXPECT_EQ(Label()->text(), "various");
        QTest::keyClick(Various(), Qt::Key_Space);
        EXPECT_EQ(Label()->text(), "7");
        QTest::keyClick(Various(), Qt::Key_Space);
        Ok();
    }));
    EXPECT_THAT(m_value, IsNullValue());
}

TEST_F(frmDropSliderTest, AClickOnTheSliderAloneUnchecksVarious)
{
    m_value = Value::Null();
    m_default = 100;
    EXPECT_TRUE(Popup([this] {
        ClickHandle();
        EXPECT_EQ(Slider()->value(), 100);
        EXPECT_FALSE(Various()->isChecked());
        EXPECT_EQ(Label()->text(), "100");
        Ok();
    }));
    EXPECT_THAT(m_value, IsValue(100));
}

TEST_F(frmDropSliderTest, AScrollAtTheEndOfTheRangeUnchecksVariousToo)
{
    m_value = Value::Null();
    m_default = 0;
    EXPECT_TRUE(Popup([this] {
        PressKey(Qt::Key_Home);
        EXPECT_FALSE(Various()->isChecked());
        EXPECT_EQ(Label()->text(), "0");
        Ok();
    }));
    EXPECT_THAT(m_value, IsValue(0));
}

TEST_F(frmDropSliderTest, AValueOutsideTheRangeIsClamped)
{
    m_value = 300;
    EXPECT_TRUE(Popup([this] {
        EXPECT_EQ(Label()->text(), "255");
        Ok();
    }));
    EXPECT_THAT(m_value, IsValue(255));
    m_value = -4;
    m_minimum = 1;
    EXPECT_TRUE(Popup([this] { Ok(); }));
    EXPECT_THAT(m_value, IsValue(1));
}

TEST_F(frmDropSliderTest, AClampedValueShowsAsWhatOkWouldReturn)
{
    m_value = 255;
    Popup([] {});
    m_value = 300;
    Popup([this] { EXPECT_EQ(Label()->text(), "255"); });
}

TEST_F(frmDropSliderTest, CancelAfterAnEarlierOkReturnsFalse)
{
    EXPECT_TRUE(Popup([this] { Ok(); }));
    EXPECT_FALSE(Popup([this] { Cancel(); }));
}

TEST_F(frmDropSliderTest, HidingTheFormIsNoConfirmation)
{
    EXPECT_TRUE(Popup([this] { Ok(); }));
    EXPECT_FALSE(Popup([] {}));
}

TEST_F(frmDropSliderTest, TheRangeIsSetBeforeTheValueMinimumFirst)
{
    Popup([] {});
    m_words.asked.clear();
    m_value = 20;
    m_minimum = 10;
    m_maximum = 12;
    Popup([] {});
    // The minimum takes 7 to 10, then 20 is clamped to 12, and the label is brought up to date at the end.
    EXPECT_THAT(m_words.asked, ElementsAre("10", "12", "12"));
}

TEST_F(frmDropSliderTest, ANullValueSetsTheSliderFirstAndChecksVariousAfterwards)
{
    m_value = Value::Null();
    m_default = 30;
    Popup([] {});
    EXPECT_THAT(m_words.asked, ElementsAre("30", "various", "various"));
}

TEST_F(frmDropSliderTest, AValueAfterVariousUnchecksFirstAndSetsTheSliderAfterwards)
{
    m_value = Value::Null();
    m_default = 30;
    Popup([] {});
    m_words.asked.clear();
    m_value = 7;
    Popup([] {});
    EXPECT_THAT(m_words.asked, ElementsAre("30", "7", "7"));
}

TEST_F(frmDropSliderTest, TheLabelSpeaksThroughTheNewTranslatorEvenWhereNothingMoved)
{
    Popup([] {});
    m_words.suffix = " metres";
    Popup([this] { EXPECT_EQ(Label()->text(), "7 metres"); });
}

TEST_F(frmDropSliderTest, TheCaptionIsNotUsed)
{
    const QString title = m_form.windowTitle();
    Popup([&] { EXPECT_EQ(m_form.windowTitle(), title); });
    EXPECT_FALSE(title.isEmpty());
}

TEST_F(frmDropSliderTest, AValueThatIsNoNumberRaisesAndShowsNothing)
{
    m_value = QString("abc");
    EXPECT_EQ(ErrorNumberOf([this] { Popup([] {}); }), typeMismatch);
    m_value = Value::Null();
    m_default = Value();
    EXPECT_EQ(ErrorNumberOf([this] { Popup([] {}); }), typeMismatch);
    m_default = 3e9;
    EXPECT_EQ(ErrorNumberOf([this] { Popup([] {}); }), overflow);
    EXPECT_FALSE(m_form.isVisible());
}

TEST_F(frmDropSliderTest, HangsWithItsUpperRightCornerAtThePoint)
{
    Popup([this] {
        const QRect place = m_form.geometry();
        EXPECT_EQ(place.topLeft() + QPoint(place.width(), 0), QPoint(400, 200));
    });
}

TEST_F(frmDropSliderTest, StaysOnTheScreenNearEachEdge)
{
    const QRect area = m_form.screen()->availableGeometry();
    for (const QPoint corner : {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()}) {
        m_x = (corner.x() + 5) * 15;
        m_y = corner.y() * 15;
        Popup([&] { EXPECT_TRUE(area.contains(m_form.geometry())) << corner.x() << "," << corner.y(); });
    }
}

TEST_F(frmDropSliderTest, GrowsToTheLeftForALongTextAndNeverClipsIt)
{
    m_x = 700 * 15;
    Popup([this] {
        const int before = m_form.width();
        m_words.suffix = QString(40, 'm');
        PressKey(Qt::Key_Right);
        EXPECT_GT(m_form.width(), before);
        EXPECT_EQ(m_form.x() + m_form.width(), 700);
        EXPECT_GE(Label()->width(), Label()->sizeHint().width());
        m_words.suffix.clear();
        PressKey(Qt::Key_Right);
        EXPECT_GT(m_form.width(), before);
    });
    Popup([this] { EXPECT_EQ(m_form.width(), m_form.sizeHint().width()); });
}

TEST_F(frmDropSliderTest, EnterConfirmsFromTheSlider)
{
    EXPECT_TRUE(Popup([this] {
        EXPECT_EQ(m_form.focusWidget(), Slider());
        PressKey(Qt::Key_Return);
    }));
}

TEST_F(frmDropSliderTest, EnterConfirmsFromVarious)
{
    EXPECT_TRUE(Popup([this] {
        Various()->setFocus();
        PressKey(Qt::Key_Enter);
    }));
}

TEST_F(frmDropSliderTest, EscapeCancels)
{
    EXPECT_FALSE(Popup([this] {
        PressKey(Qt::Key_Escape);
        EXPECT_FALSE(m_form.isVisible());
    }));
}

TEST_F(frmDropSliderTest, PageKeysTakeLargeSteps)
{
    Popup([this] {
        PressKey(Qt::Key_PageUp);
        EXPECT_EQ(Slider()->value(), 7 + Slider()->pageStep());
        PressKey(Qt::Key_End);
        EXPECT_EQ(Label()->text(), "255");
    });
}

TEST_F(frmDropSliderTest, FocusStartsOnTheSliderEveryTime)
{
    Popup([this] { Various()->setFocus(); });
    Popup([this] { EXPECT_EQ(m_form.focusWidget(), Slider()); });
}

TEST_F(frmDropSliderTest, FollowsItsOwnerAndStaysLoaded)
{
    QWidget other;
    Popup([] {});
    EXPECT_FALSE(m_form.isVisible());
    QTimer::singleShot(0, &m_form, [&] {
        EXPECT_EQ(m_form.parentWidget(), &other);
        EXPECT_TRUE(m_form.windowFlags() & Qt::FramelessWindowHint);
        m_form.hide();
    });
    m_form.Popup(&other, m_words, m_x, m_y, "", m_value, 0, 0, 255, true);
    m_form.setParent(nullptr);
}

TEST_F(frmDropSliderTest, ASecondPopupWhileItIsOpenReturnsAtOnce)
{
    Value inner = 3;
    Popup([&] {
        EXPECT_FALSE(m_form.Popup(&m_owner, m_words, 0, 0, "", inner, 0, 0, 10, true));
        EXPECT_EQ(Slider()->maximum(), 255);
    });
    EXPECT_THAT(inner, IsValue(3));
}

TEST_F(frmDropSliderTest, AnOwnerDestroyedMeanwhileEndsThePopup)
{
    auto owner = std::make_unique<QWidget>();
    const QPointer form(new frmDropSlider(owner.get()));
    QTimer::singleShot(0, [&] { owner.reset(); });

    EXPECT_FALSE(form->Popup(owner.get(), m_words, 0, 0, "", m_value, 0, 0, 255, true));
    EXPECT_TRUE(form.isNull());
    EXPECT_THAT(m_value, IsValue(7));
}

TEST_F(frmDropSliderTest, AScreenReaderHearsTheTextOfTheValue)
{
    m_value = Value::Null();
    Popup([this] {
        QAccessibleInterface* slider = QAccessible::queryAccessibleInterface(Slider());
        EXPECT_EQ(slider->text(QAccessible::Name), "Value");
        EXPECT_EQ(slider->text(QAccessible::Description), "various");
    });
}

TEST_F(frmDropSliderTest, CaptionsAreTranslatedWhenTheFormLoads)
{
    const UsingMessages german({{"Various", "Verschieden"}, {"Cancel", "Abbrechen"}});
    frmDropSlider form;
    EXPECT_EQ(form.findChild<QCheckBox*>("chkVarious")->text(), "Verschieden");
    EXPECT_EQ(form.findChild<QPushButton*>("cmdCancel")->text(), "Abbrechen");
}

TEST_F(frmDropSliderTest, AFreshFormShowsItsDesignCaptions)
{
    EXPECT_EQ(Label()->text(), "----");
    EXPECT_EQ(Various()->text(), "Various");
    EXPECT_EQ(Button("cmdCancel")->text(), "Cancel");
}

} // namespace

} // namespace Orvane::Testing
