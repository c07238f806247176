// SPDX-License-Identifier: MIT
#pragma once

#include "ovctrls/CheckBoxPlus.h"
#include "ovctrls/InnerCheckBox.h"
#include "support/Errors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace Orvane::Testing {

constexpr int overflow = int(ErrorNumber::Overflow);
constexpr int subscriptOutOfRange = int(ErrorNumber::SubscriptOutOfRange);
constexpr int typeMismatch = int(ErrorNumber::TypeMismatch);

/// Records the events of a box in their order.
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

/// A box in a separate window.
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

} // namespace Orvane::Testing
