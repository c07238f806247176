// SPDX-License-Identifier: MIT
#include "component/controls/frmDropSliderFixture.h"

#include <QAccessible>
#include <QPointer>
#include <QScreen>

namespace Orvane::Testing {

namespace {

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
