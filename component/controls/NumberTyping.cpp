// SPDX-License-Identifier: MIT
#include "component/controls/NumberTyping.h"

#include "component/common/EventGuard.h"
#include "component/common/Messages.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QKeyEvent>
#include <QLocale>
#include <QWidget>

#include <chrono>
#include <utility>

namespace Orvane {

namespace {

constexpr std::chrono::milliseconds TypingPause{1500};
constexpr qsizetype MostDigits = 15; // as many as a number keeps
constexpr QChar DecimalPoint = u'.'; // as the values are shown

bool IsDecimalPoint(QChar character)
{
    return character == DecimalPoint || QString(character) == QString(QLocale().decimalPoint());
}

// The digit that a key types, in whatever script, or the decimal point; a null character for another key.
QChar NumberCharacter(const QKeyEvent& key)
{
    const bool isCommand = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (isCommand || key.text().size() != 1)
        return {};
    const QChar character = key.text().front();
    if (character.digitValue() >= 0)
        return QChar(u'0' + character.digitValue());
    return IsDecimalPoint(character) ? DecimalPoint : QChar();
}

bool IsModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta
        || key == Qt::Key_AltGr;
}

bool IsConfirmation(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

NumberTyping::NumberTyping(QWidget& form) : QObject(&form), m_pause(new QTimer(this))
{
    m_pause->setObjectName(QStringLiteral("tmrTyping"));
    m_pause->setSingleShot(true);
    m_pause->setInterval(TypingPause);
    connect(m_pause, &QTimer::timeout, this, [this, &form] { GuardEvent(&form, [this] { Finish(); }); });
    for (QWidget* child : form.findChildren<QWidget*>())
        child->installEventFilter(this);
}

void NumberTyping::Begin(const ITypedNumbers* numbers, qint32 minimum, qint32 maximum)
{
    m_numbers = numbers;
    m_minimum = minimum;
    m_maximum = maximum;
    Forget();
}

bool NumberTyping::Settle()
{
    if (std::exchange(m_isRefused, false)) {
        emit ValueWanted();
        return false;
    }
    Finish();
    return !m_isRefused;
}

void NumberTyping::Forget()
{
    m_pause->stop();
    m_digits.clear();
    m_isRefused = false;
}

bool NumberTyping::eventFilter(QObject* watched, QEvent* event)
{
    bool isTaken = false;
    auto* form = static_cast<QWidget*>(parent());
    // A key that the widget with the focus ignores is sent to its parents, too.
    if (event->type() == QEvent::KeyPress && m_numbers && watched == form->focusWidget()) {
        GuardEvent(form, [&] { isTaken = Takes(*static_cast<const QKeyEvent*>(event)); });
    }
    return isTaken || QObject::eventFilter(watched, event);
}

// Enter ends a number by confirming, which asks Settle.
bool NumberTyping::Takes(const QKeyEvent& key)
{
    if (IsModifier(key.key()) || IsConfirmation(key.key()) || key.key() == Qt::Key_Escape)
        return false;
    if (TakesCharacter(key) || (key.key() == Qt::Key_Backspace && TakesBackspace()))
        return true;
    if (std::exchange(m_isRefused, false))
        emit ValueWanted();
    Finish();
    return false;
}

bool NumberTyping::TakesCharacter(const QKeyEvent& key)
{
    const QChar character = NumberCharacter(key);
    const bool isPoint = character == DecimalPoint;
    const bool mayHavePoint
        = m_numbers->AllowsFractions() && !m_digits.isEmpty() && !m_digits.contains(DecimalPoint);
    if (character.isNull() || (isPoint && !mayHavePoint))
        return false;
    if (m_digits.size() < MostDigits)
        m_digits += character;
    ShowTyped();
    return true;
}

bool NumberTyping::TakesBackspace()
{
    if (m_digits.isEmpty())
        return false;
    m_digits.chop(1);
    if (!m_digits.isEmpty()) {
        ShowTyped();
        return true;
    }
    Forget();
    emit ValueWanted();
    return true;
}

void NumberTyping::ShowTyped()
{
    m_isRefused = false;
    m_pause->start();
    emit TextWanted(m_numbers->NumberText(m_digits));
}

void NumberTyping::Finish()
{
    m_pause->stop();
    if (!m_digits.isEmpty())
        FinishNumber();
}

void NumberTyping::FinishNumber()
{
    const double number = ToDouble(std::exchange(m_digits, QString()));
    const ITypedNumbers::Range possible = m_numbers->NumbersOf(m_minimum, m_maximum);
    if (number < possible.smallest || number > possible.largest)
        Refuse(possible);
    else
        emit Typed(m_numbers->PositionOf(number));
}

void NumberTyping::Refuse(const ITypedNumbers::Range& possible)
{
    m_isRefused = true;
    emit TextWanted(TranslateMsg(
        "Possible: ^1 to ^2", m_numbers->NumberText(ToText(possible.smallest)),
        m_numbers->NumberText(ToText(possible.largest))));
}

} // namespace Orvane
