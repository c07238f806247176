// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PanelFixture.h"
#include "component/dialog/panel/ScaleRangeEditor.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

TEST(NullDefault, StandsInForNullOnly)
{
    EXPECT_THAT(NullDefault(Value::Null(), qint32(257)), IsValue(qint32(257)));
    EXPECT_THAT(NullDefault(qint16(0), qint32(257)), IsValue(qint16(0)));
}

TEST_F(Panel, AMinimumAboveTheMaximumTakesItAlong)
{
    ClickLayer("Low");
    ChooseScale("cmdEditMinScale", 10);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:10000");
    EXPECT_EQ(TextOf("lblScaleMax"), "1:10000");
    EXPECT_TRUE(IsUnderlined("lblScaleMin") && IsUnderlined("lblScaleMax"));
}

TEST_F(Panel, AMaximumBelowTheMinimumTakesItAlong)
{
    ClickLayer("Scaled");
    ChooseScale("cmdEditMaxScale", 3);
    EXPECT_EQ(TextOf("lblScaleMax"), "1:3000");
    EXPECT_EQ(TextOf("lblScaleMin"), "1:3000");
}

TEST_F(Panel, LimitsThatDoNotCrossAreLeftAlone)
{
    ClickLayer("Scaled");
    ChooseScale("cmdEditMinScale", 20);
    EXPECT_EQ(TextOf("lblScaleMax"), "1:20000");
    EXPECT_FALSE(IsUnderlined("lblScaleMax"));
    ChooseScale("cmdEditMaxScale", 20);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:20000");
}

// "dont care" reads back as 0, below every minimum.
TEST_F(Panel, AnUnlimitedMaximumTakesOverAMinimumOfOneOrMore)
{
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    ChooseScale("cmdEditMinScale", 1);
    EXPECT_EQ(TextOf("lblScaleMax"), "1:1000");
}

TEST_F(Panel, AnUnlimitedMaximumStaysWithAMinimumOfNone)
{
    ClickLayer("Scaled");
    ChooseScale("cmdEditMaxScale", 256);
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    ChooseScale("cmdEditMinScale", 0);
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    EXPECT_EQ(TextOf("lblScaleMin"), "dont care");
}

TEST_F(Panel, AVariousMaximumIsNeverTouched)
{
    SelectTransport();
    ChooseScale("cmdEditMinScale", 255);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:255000");
    EXPECT_EQ(TextOf("lblScaleMax"), "various");
    EXPECT_FALSE(IsUnderlined("lblScaleMax"));
}

TEST_F(Panel, AVariousMinimumIsNeverTouched)
{
    SelectTransport();
    ChooseScale("cmdEditMaxScale", 1);
    EXPECT_EQ(TextOf("lblScaleMin"), "various");
}

TEST_F(Panel, ConfirmingVariousLeavesTheLabelUnmarked)
{
    SelectTransport();
    ASSERT_TRUE(EditWithSlider("cmdEditMinScale", [](QWidget& slider) {
        EXPECT_TRUE(slider.findChild<QCheckBox*>("chkVarious")->isEnabled());
        QTest::mouseClick(slider.findChild<QWidget*>("cmdOK"), Qt::LeftButton);
    }));
    EXPECT_EQ(TextOf("lblScaleMin"), "various");
    EXPECT_FALSE(IsUnderlined("lblScaleMin"));
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, VariousCanBeChosenOnlyWhereTheLayersDiffer)
{
    for (const char* button : {"cmdEditMinScale", "cmdEditMaxScale", "cmdEditPriority"}) {
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            EXPECT_FALSE(slider.findChild<QCheckBox*>("chkVarious")->isEnabled()) << button;
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
    }
}

TEST_F(Panel, AnAbandonedSliderChangesNothing)
{
    ASSERT_TRUE(EditWithSlider("cmdEditMinScale", [](QWidget& slider) {
        slider.findChild<QSlider*>("sldValue")->setValue(9);
        QTest::mouseClick(slider.findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
    }));
    EXPECT_EQ(TextOf("lblScaleMin"), "dont care");
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, EachSliderHasItsRange)
{
    const std::vector<std::tuple<const char*, int, int>> ranges{
        {"cmdEditMinScale", 0, 255}, {"cmdEditMaxScale", 1, 256}, {"cmdEditPriority", 1, 255}};
    for (const auto& [button, minimum, maximum] : ranges) {
        int seenMinimum = -1;
        int seenMaximum = -1;
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            auto* value = slider.findChild<QSlider*>("sldValue");
            seenMinimum = value->minimum();
            seenMaximum = value->maximum();
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
        EXPECT_EQ(seenMinimum, minimum) << button;
        EXPECT_EQ(seenMaximum, maximum) << button;
    }
}

TEST_F(Panel, VariousValuesStartTheSliderAtItsDefault)
{
    host.SetLayerColumn(2, "Priority", qint32(7));
    SelectTransport();
    const std::vector<std::pair<const char*, int>> defaults{
        {"cmdEditMinScale", 0}, {"cmdEditMaxScale", 256}, {"cmdEditPriority", 1}};
    for (const auto& [button, expected] : defaults) {
        int position = -1;
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            position = slider.findChild<QSlider*>("sldValue")->value();
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
        EXPECT_EQ(position, expected) << button;
    }
}

TEST_F(Panel, APriorityTouchesNoOtherLabel)
{
    ChooseScale("cmdEditPriority", 1);
    EXPECT_EQ(TextOf("lblPriority"), "1 (highest)");
    EXPECT_TRUE(IsUnderlined("lblPriority"));
    EXPECT_FALSE(IsUnderlined("lblScaleMin") || IsUnderlined("lblScaleMax"));
    EXPECT_TRUE(CanApply());
}

TEST_F(Panel, TheSliderOpensOnThePressAndOnKeys)
{
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        bool opened = false;
        auto& button = Find<QToolButton>("cmdEditPriority");
        QTimer::singleShot(0, &button, [&] {
            opened = QApplication::activeModalWidget() != nullptr;
            if (opened)
                QApplication::activeModalWidget()->close();
        });
        QTest::keyPress(&button, Qt::Key(key));
        QApplication::processEvents();
        EXPECT_TRUE(opened) << key;
        EXPECT_FALSE(button.isDown());
        QTest::keyRelease(&button, Qt::Key(key));
    }
}

TEST_F(Panel, TheSliderOpensBeforeTheMouseIsReleased)
{
    auto& button = Find<QToolButton>("cmdEditPriority");
    bool opened = false;
    QTimer::singleShot(0, &button, [&] {
        opened = QApplication::activeModalWidget() != nullptr;
        if (opened)
            QApplication::activeModalWidget()->close();
    });
    QTest::mousePress(&button, Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(opened);
    QTest::mouseRelease(&button, Qt::LeftButton);
}

TEST_F(Panel, OneSliderServesAllThreeProperties)
{
    std::vector<QWidget*> sliders;
    for (const char* button : {"cmdEditMinScale", "cmdEditMaxScale", "cmdEditPriority"}) {
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            sliders.push_back(&slider);
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
    }
    EXPECT_THAT(sliders, ElementsAre(sliders.front(), sliders.front(), sliders.front()));
}

TEST_F(Panel, EachSliderOffersVariousForItsOwnSlotOnly)
{
    host.AddLayer({.id = 7, .name = "Near", .minVisScale = 1000.0, .maxVisScale = 20000.0});
    host.AddLayer({.id = 8, .name = "Far", .minVisScale = 5000.0, .maxVisScale = 20000.0});
    host.AddGroup({.id = 30, .name = QString("Mixed"), .ordering = 3, .members = {7, 8}});
    const auto offered = [this] {
        SelectTransport(); // so that the next selection is read again
        ClickGroup("Mixed");
        std::vector<bool> various;
        for (const char* button : {"cmdEditMinScale", "cmdEditMaxScale", "cmdEditPriority"}) {
            EXPECT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
                various.push_back(slider.findChild<QCheckBox*>("chkVarious")->isEnabled());
                QTest::keyClick(&slider, Qt::Key_Escape);
            }));
        }
        return various;
    };
    EXPECT_THAT(offered(), ElementsAre(true, false, false));
    host.SetLayerColumn(8, "MinVisScale", 1000.0);
    host.SetLayerColumn(8, "MaxVisScale", 30000.0);
    EXPECT_THAT(offered(), ElementsAre(false, true, false));
    host.SetLayerColumn(8, "MaxVisScale", 20000.0);
    host.SetLayerColumn(8, "Priority", qint32(7));
    EXPECT_THAT(offered(), ElementsAre(false, false, true));
}

TEST_F(Panel, TheSliderStartsWhereTheLabelStands)
{
    const auto start = [this](const char* button) {
        int position = -1;
        EXPECT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            position = slider.findChild<QSlider*>("sldValue")->value();
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
        return position;
    };
    EXPECT_EQ(start("cmdEditMaxScale"), 1) << "\"dont care\" reads back as 0, below the least";
    ClickLayer("Rivers");
    EXPECT_EQ(start("cmdEditMinScale"), 5);
    EXPECT_EQ(start("cmdEditMaxScale"), 20);
    EXPECT_EQ(start("cmdEditPriority"), 100);
    ChooseScale("cmdEditMinScale", 8);
    EXPECT_EQ(start("cmdEditMinScale"), 8);
}

TEST_F(Panel, EachSliderHangsUnderItsOwnButtonAndSaysItsLabel)
{
    Form()->move(0, -80); // so that the lowest popup fits on a screen 600 pixels high
    ClickLayer("Rivers");
    const std::vector<std::pair<const char*, const char*>> pairs{
        {"cmdEditMinScale", "lblScaleMin"},
        {"cmdEditMaxScale", "lblScaleMax"},
        {"cmdEditPriority", "lblPriority"}};
    for (const auto& [name, label] : pairs) {
        const QWidget& button = Find(name);
        const QRect place(button.mapToGlobal(QPoint()), button.size());
        QRect popup;
        QString text;
        ASSERT_TRUE(EditWithSlider(name, [&](QWidget& slider) {
            popup = slider.geometry();
            text = slider.findChild<QLabel*>("lblValue")->text();
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
        EXPECT_EQ(popup.right(), place.right()) << name;
        EXPECT_EQ(popup.top(), place.bottom() + 1) << name;
        EXPECT_EQ(text, TextOf(label)) << name;
    }
}

} // namespace

} // namespace Orvane::Testing
