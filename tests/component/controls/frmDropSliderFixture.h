// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/ControlsTestSupport.h"
#include "component/controls/IUITranslator.h"
#include "component/controls/frmDropSlider.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QTimer>

#include <functional>

namespace Orvane::Testing {

/// Shows a value in words and records the calls.
class WordsTranslator : public IUITranslator
{
public:
    QString suffix;
    bool isFaulty = false;
    mutable std::vector<std::string> asked;

private:
    QString IUITranslator_toString(const Value& value) const override
    {
        if (isFaulty)
            throw RunTimeError(10007, QStringLiteral("out of order"));
        const QString text = value.IsNull() ? QString("various") : ToText(value);
        asked.push_back(text.toStdString());
        return text + suffix;
    }
    Value IUITranslator_FromString(const QString& text) const override { return ToInt32(text); }
};

/// A slider popup with its owner, and the actions of a user who edits the value 7.
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

    // Opens the popup, performs the user's actions, and checks that it is closed again.
    bool Popup(const std::function<void()>& user)
    {
        QTimer::singleShot(0, &m_form, [&] {
            user();
            m_form.hide();
        });
        return Open();
    }
    bool Open()
    {
        return m_form.Popup(
            &m_owner, *m_translator, m_x, m_y, "unused", m_value, m_default, m_minimum, m_maximum,
            m_allowVarious);
    }

    QWidget m_owner;
    frmDropSlider m_form{&m_owner};
    WordsTranslator m_words;
    const IUITranslator* m_translator = &m_words;
    Value m_value = 7;
    Value m_default = 0;
    Twips m_x = 400 * 15;
    Twips m_y = 200 * 15;
    qint32 m_minimum = 0;
    qint32 m_maximum = 255;
    bool m_allowVarious = true;
};

} // namespace Orvane::Testing
