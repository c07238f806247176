// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/ITypedNumbers.h"

#include <QObject>
#include <QTimer>

class QKeyEvent;
class QWidget;

namespace Orvane {

/// Lets a user type the number of a slider: digits, wherever the focus is in the form. A pause, or a key that
/// belongs to no number, ends the number; the next digit begins another.
class NumberTyping : public QObject
{
    Q_OBJECT

public:
    /// Watches the form's widgets; form: owns this object.
    explicit NumberTyping(QWidget& form);

    /// From now on, numbers belong to these, and to a slider from minimum to maximum. numbers: not owned;
    /// nullptr if nothing can be typed.
    void Begin(const ITypedNumbers* numbers, qint32 minimum, qint32 maximum);
    /// Ends a number that is being typed. False if it, or the last one, was refused: what the user sees is
    /// not what was typed. The second call in a row returns true.
    bool Settle();
    /// Forgets what was typed.
    void Forget();

Q_SIGNALS:
    /// The text to show instead of the value: what was typed so far, or which numbers are possible.
    void TextWanted(const QString& text);
    /// The number that was typed stands for this position.
    void Typed(qint32 position);
    /// The value is to be shown again.
    void ValueWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Takes(const QKeyEvent& key);
    bool TakesCharacter(const QKeyEvent& key);
    bool TakesBackspace();
    void ShowTyped();
    void Finish();
    void FinishNumber();
    void Refuse(const ITypedNumbers::Range& possible);

    const ITypedNumbers* m_numbers = nullptr;
    qint32 m_minimum = 0;
    qint32 m_maximum = 0;
    QString m_digits;
    bool m_isRefused = false; // the possible numbers are shown
    QTimer* m_pause; // a child
};

} // namespace Orvane
