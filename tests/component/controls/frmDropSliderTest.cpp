// SPDX-License-Identifier: MIT
#include "component/controls/frmDropSliderFixture.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QMouseEvent>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

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

TEST_F(frmDropSliderTest, AFailingTranslatorIsRaisedAndToldToNobody)
{
    const MessageBoxRobot nobody{};
    m_words.isFaulty = true;
    m_value = 9;
    EXPECT_THROW(Open(), RunTimeError);
    EXPECT_TRUE(nobody.Boxes().empty());
    EXPECT_FALSE(m_form.isVisible());
    m_words.isFaulty = false;
    EXPECT_FALSE(Popup([this] { EXPECT_EQ(Label()->text(), "9"); })) << "it opens again";
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
    // The minimum changes 7 to 10, then 20 is clamped to 12, and the label is updated at the end.
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
    EXPECT_EQ(ErrorOf([this] { Popup([] {}); }), typeMismatch);
    m_value = Value::Null();
    m_default = Value();
    EXPECT_EQ(ErrorOf([this] { Popup([] {}); }), typeMismatch);
    m_default = 3e9;
    EXPECT_EQ(ErrorOf([this] { Popup([] {}); }), overflow);
    EXPECT_FALSE(m_form.isVisible());
}

} // namespace

} // namespace Orvane::Testing
