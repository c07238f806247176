// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class QToolButton;

namespace Orvane {

/// Two small buttons, one above the other, that step a single-precision value within a range. The text beside
/// them belongs to the form: connect to Change to write the value there, and call SetValue when the text has
/// changed.
///
///     WidthSpin->SetRange(0, 100);
///     WidthSpin->SetBoundText(bedThickness);
///     connect(WidthSpin, &OvSpin::Change, this, [this](float value) { ... });
class OvSpin : public QWidget
{
    Q_OBJECT
    // Qt Designer edits no float.
    Q_PROPERTY(double MinValue READ MinValue WRITE setMinValue)
    Q_PROPERTY(double MaxValue READ MaxValue WRITE setMaxValue)
    Q_PROPERTY(double Value READ Value WRITE setValue NOTIFY Change USER true)
    Q_PROPERTY(double Step READ Step WRITE setStep)

public:
    /// A spin of the value 0. parent: owns it; may be nullptr.
    explicit OvSpin(QWidget* parent = nullptr);

    /// Always within the range.
    float Value() const { return m_value; }
    /// Clamps the value to the range and emits Change if the result differs from the present value. NaN is
    /// ignored.
    void SetValue(float value);
    void setValue(float value) { SetValue(value); } // the name that form compilers use

    /// The limits of the range, initially 0 and 100. A value outside a new range is clamped. If the minimum
    /// is above the maximum, the maximum applies.
    float MinValue() const { return m_minimum; }
    void setMinValue(float minimum);
    float MaxValue() const { return m_maximum; }
    void setMaxValue(float maximum);
    void SetRange(float minimum, float maximum);

    /// The step of a button; initially 1.
    float Step() const { return m_step; }
    void setStep(float step) { m_step = step; }

    /// The text control whose Up and Down keys and wheel also step the value; nullptr for none. Not owned,
    /// and never written to.
    void SetBoundText(QWidget* control);
    QWidget* BoundText() const { return m_boundText; }

public Q_SLOTS:
    /// Change the value by one step, as the buttons do.
    void StepUp();
    void StepDown();

Q_SIGNALS:
    /// The value was changed by the user or by the program.
    void Change(float value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QToolButton* NewButton(const char* name, Qt::ArrowType arrow, const char* english);
    void StepBy(int steps);
    bool StepByKey(int key);
    bool StepByWheel(int angle);
    void ShowEnds();

    QToolButton* m_up;
    QToolButton* m_down;
    QPointer<QWidget> m_boundText;
    float m_value = 0;
    float m_minimum = 0;
    float m_maximum = 100;
    float m_step = 1;
};

} // namespace Orvane
