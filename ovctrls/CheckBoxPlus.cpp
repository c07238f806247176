// SPDX-License-Identifier: MIT
#include "ovctrls/CheckBoxPlus.h"

#include "ovctrls/EventArguments.h"
#include "ovctrls/InnerCheckBox.h"
#include "ovctrls/PropertyBag.h"
#include "ovctrls/TwipsPerInch.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace Orvane {

namespace {

namespace Key {

const QString backColor = QStringLiteral("BackColor");
const QString foreColor = QStringLiteral("ForeColor");
const QString value = QStringLiteral("Value");
const QString caption = QStringLiteral("Caption");
const QString enabled = QStringLiteral("Enabled");
const QString font = QStringLiteral("Font");
const QString cycleMode = QStringLiteral("CycleMode");

} // namespace Key

Qt::CheckState StateOf(qint16 value)
{
    switch (value) {
    case Unchecked:
        return Qt::Unchecked;
    case Checked:
        return Qt::Checked;
    case Greyed:
        return Qt::PartiallyChecked;
    default:
        throw RunTimeError(
            ErrorNumber::SubscriptOutOfRange,
            QStringLiteral(QT_TR_NOOP("The value of a check box is 0, 1 or 2.")));
    }
}

qint16 ValueOf(Qt::CheckState state)
{
    if (state == Qt::PartiallyChecked)
        return Greyed;
    return state == Qt::Checked ? Checked : Unchecked;
}

// A disabled caption keeps the usual colours of disabled captions.
void SetActiveColour(QPalette& palette, QPalette::ColorRole role, const QColor& colour)
{
    palette.setColor(QPalette::Active, role, colour);
    palette.setColor(QPalette::Inactive, role, colour);
}

struct MouseArguments {
    qint16 button;
    qint16 shift;
    float x;
    float y;
};

MouseArguments ArgumentsOf(const QMouseEvent& event, Qt::MouseButtons buttons, const QWidget& box)
{
    const QPoint position = event.pos();
    return {
        ButtonMaskOf(buttons), ShiftMaskOf(event.modifiers()),
        float(position.x() * TwipsPerInch / box.logicalDpiX()),
        float(position.y() * TwipsPerInch / box.logicalDpiY())};
}

} // namespace

CheckBoxPlus::CheckBoxPlus(QWidget* parent) : QWidget(parent), m_check1(new InnerCheckBox(this))
{
    m_check1->setObjectName(QStringLiteral("Check1"));
    m_check1->setBackgroundRole(QPalette::Window);
    // The box fills the whole control in every style.
    m_check1->setAttribute(Qt::WA_LayoutUsesWidgetRect);
    setSizePolicy(m_check1->sizePolicy());
    m_check1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_check1);
    // The tab order of a form skips widgets without a focus policy, even with a focus proxy.
    setFocusPolicy(m_check1->focusPolicy());
    setFocusProxy(m_check1);
    Init();
}

void CheckBoxPlus::Init()
{
    connect(m_check1, &QCheckBox::stateChanged, this, &CheckBoxPlus::Click);
    connect(m_check1, &InnerCheckBox::KeyPressed, this, &CheckBoxPlus::OnKeyPressed);
    connect(m_check1, &InnerCheckBox::KeyReleased, this, &CheckBoxPlus::OnKeyReleased);
    connect(m_check1, &InnerCheckBox::MousePressed, this, &CheckBoxPlus::OnMousePressed);
    connect(m_check1, &InnerCheckBox::MouseMoved, this, &CheckBoxPlus::OnMouseMoved);
    connect(m_check1, &InnerCheckBox::MouseReleased, this, &CheckBoxPlus::OnMouseReleased);
}

void CheckBoxPlus::setBackColor(qint32 colour)
{
    m_backColor = colour;
    ShowColours();
    emit PropertyChanged(Key::backColor);
}

void CheckBoxPlus::setForeColor(qint32 colour)
{
    m_foreColor = colour;
    ShowColours();
    emit PropertyChanged(Key::foreColor);
}

qint16 CheckBoxPlus::Value() const
{
    return ValueOf(m_check1->checkState());
}

void CheckBoxPlus::setValue(const QString& text)
{
    const QPointer self(this);
    SetCheckValue(ToInt16(text));
    if (self)
        emit PropertyChanged(Key::value);
}

QString CheckBoxPlus::Caption() const
{
    return m_check1->text();
}

void CheckBoxPlus::setCaption(const QString& caption)
{
    m_check1->setText(caption);
    emit PropertyChanged(Key::caption);
}

bool CheckBoxPlus::Enabled() const
{
    return isEnabledTo(parentWidget());
}

void CheckBoxPlus::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    emit PropertyChanged(Key::enabled);
}

QFont CheckBoxPlus::Font() const
{
    return m_check1->font();
}

void CheckBoxPlus::setFont(const QFont& font)
{
    QWidget::setFont(font);
    emit PropertyChanged(Key::font);
}

void CheckBoxPlus::setCycleMode(int mode)
{
    m_cycleMode = ToInt16(mode);
    emit PropertyChanged(Key::cycleMode);
}

void CheckBoxPlus::setAccessibleName(const QString& name)
{
    QWidget::setAccessibleName(name);
    m_check1->setAccessibleName(name);
}

void CheckBoxPlus::Refresh()
{
    m_check1->repaint();
}

void CheckBoxPlus::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(Key::backColor, m_backColor, SystemColour::ButtonFace);
    bag.WriteProperty(Key::foreColor, m_foreColor, SystemColour::ButtonText);
    bag.WriteProperty(Key::enabled, Enabled(), true);
    bag.WriteProperty(Key::cycleMode, qint32(m_cycleMode), qint32(TwoStateCycle));
    const bool isAmbient = !testAttribute(Qt::WA_SetFont);
    bag.WriteProperty(Key::font, Font(), isAmbient ? Font() : QVariant());
}

void CheckBoxPlus::ReadProperties(const PropertyBag& bag)
{
    const qint32 backColor = bag.ReadLong(Key::backColor, SystemColour::ButtonFace);
    const qint32 foreColor = bag.ReadLong(Key::foreColor, SystemColour::ButtonText);
    const bool enabled = bag.ReadBoolean(Key::enabled, true);
    const QFont font = bag.ReadFont(Key::font, QFont());
    m_cycleMode = ToInt16(bag.ReadLong(Key::cycleMode, TwoStateCycle));
    m_backColor = backColor;
    m_foreColor = foreColor;
    QWidget::setEnabled(enabled);
    QWidget::setFont(font);
    ShowColours();
}

void CheckBoxPlus::SetErrorReport(const std::function<void(std::exception_ptr)>& report)
{
    m_check1->SetErrorReport(report);
}

void CheckBoxPlus::changeEvent(QEvent* event)
{
    m_check1->Errors().Guard([&] {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            ShowColours();
    });
}

void CheckBoxPlus::ShowColours()
{
    const bool ownBackground = m_backColor != SystemColour::ButtonFace;
    QPalette colours;
    if (ownBackground)
        colours.setColor(QPalette::Window, ResolveColour(m_backColor, palette()));
    if (m_foreColor != SystemColour::ButtonText)
        SetActiveColour(colours, QPalette::WindowText, ResolveColour(m_foreColor, palette()));
    m_check1->setAutoFillBackground(ownBackground);
    m_check1->setPalette(colours);
}

void CheckBoxPlus::SetCheckValue(qint16 value)
{
    const Qt::CheckState state = StateOf(value);
    if (m_check1->checkState() != state) // the same would be painted again
        m_check1->setCheckState(state);
}

void CheckBoxPlus::OnKeyPressed(const QKeyEvent& event, bool& swallow)
{
    const qint16 pressed = KeyCodeOf(event.key());
    const qint16 typed = KeyAsciiOf(event);
    qint16 keyCode = pressed;
    qint16 shift = ShiftMaskOf(event.modifiers());
    const QPointer self(this);
    emit KeyDown(keyCode, shift);
    swallow = pressed != 0 && keyCode == 0;
    if (!self || swallow || typed == 0)
        return;
    qint16 keyAscii = typed;
    emit KeyPress(keyAscii);
    swallow = keyAscii == 0;
}

void CheckBoxPlus::OnKeyReleased(const QKeyEvent& event)
{
    qint16 keyCode = KeyCodeOf(event.key());
    qint16 shift = ShiftMaskOf(event.modifiers());
    emit KeyUp(keyCode, shift);
}

void CheckBoxPlus::OnMousePressed(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton)
        m_nextValue = NextCheckValue(Value(), m_cycleMode);
    MouseArguments arguments = ArgumentsOf(event, event.button(), *m_check1);
    emit MouseDown(arguments.button, arguments.shift, arguments.x, arguments.y);
}

void CheckBoxPlus::OnMouseMoved(const QMouseEvent& event)
{
    MouseArguments arguments = ArgumentsOf(event, event.buttons(), *m_check1);
    emit MouseMove(arguments.button, arguments.shift, arguments.x, arguments.y);
}

void CheckBoxPlus::OnMouseReleased(const QMouseEvent& event)
{
    MouseArguments arguments = ArgumentsOf(event, event.button(), *m_check1);
    const QPointer self(this);
    if (event.button() == Qt::LeftButton)
        SetCheckValue(m_nextValue);
    if (self)
        emit MouseUp(arguments.button, arguments.shift, arguments.x, arguments.y);
}

} // namespace Orvane
