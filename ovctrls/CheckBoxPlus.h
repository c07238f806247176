// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/ovctrls/CheckValues.h>
#include <orvane/ovctrls/SystemColours.h>

#include <QFont>
#include <QWidget>

#include <exception>
#include <functional>

class QKeyEvent;
class QMouseEvent;

namespace Orvane {

class InnerCheckBox;
class PropertyBag;

/// A check box whose mouse clicks can cycle through three states. It contains one ordinary check box,
/// "Check1", which fills it and handles focus, size, mnemonic and accessibility.
///
///     <widget class="Orvane::CheckBoxPlus" name="chkVisible">
///      <property name="Caption"><string>&amp;Visible</string></property>
///      <property name="CycleMode"><number>1</number></property>
///     </widget>
///
/// Each setter changes the box and then reports its key through PropertyChanged, even if the value was the
/// same: the container saves what was set. The setters are named as form compilers call them.
///
/// A left click sets the value of NextCheckValue when the button is released, wherever the pointer is. The
/// space bar, a mnemonic and a screen reader toggle between unchecked and checked; they make a greyed box
/// unchecked.
///
/// Qt Designer offers it where Orvane's plug-in for Designer is installed.
class CheckBoxPlus : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QString Value READ ValueText WRITE setValue)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(int ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ Font WRITE setFont)
    Q_PROPERTY(int CycleMode READ CycleMode WRITE setCycleMode)
    Q_PROPERTY(QString accessibleName READ accessibleName WRITE setAccessibleName)

public:
    /// An unchecked box without a caption. parent: owns it; may be nullptr.
    explicit CheckBoxPlus(QWidget* parent = nullptr);

    /// The colour behind the box: BGR, or a system colour. With the face colour, the container shows through.
    qint32 BackColor() const { return m_backColor; }
    void setBackColor(qint32 colour);

    /// The colour of the caption: BGR, or a system colour.
    qint32 ForeColor() const { return m_foreColor; }
    void setForeColor(qint32 colour);

    /// 0 unchecked, 1 checked, 2 greyed; one of CheckValue.
    qint16 Value() const;
    /// The same as a text, "2" for example.
    QString ValueText() const { return QString::number(Value()); }
    /// Sets the value to the number in the text; emits Click if this changes the value. Raises 13 (type
    /// mismatch) for a text that holds no number, 6 (overflow) beyond 16 bits, and 9 for a number that is no
    /// CheckValue.
    void setValue(const QString& text);
    void setValue(int value) { setValue(QString::number(value)); }

    /// The text next to the box; "&" marks the mnemonic.
    QString Caption() const;
    void setCaption(const QString& caption);

    /// The box's own flag; disabling the container does not change it.
    bool Enabled() const;
    void setEnabled(bool enabled);

    /// The font of the caption; an underlined one marks an edited property.
    QFont Font() const;
    void setFont(const QFont& font);

    /// One of CheckCycle, 0 at first. Raises 6 (overflow) for a number beyond 16 bits.
    qint16 CycleMode() const { return m_cycleMode; }
    void setCycleMode(int mode);

    /// Also sets the name of the inner box, because screen readers read that name.
    void setAccessibleName(const QString& name);

    /// Repaints the box at once.
    void Refresh();

    /// Sets who gets what a listener raised while the box handled an event: no exception leaves the box.
    /// Without a report, that is a warning in the log. report: must not raise, and may outlive the box
    /// for the rest of the event.
    void SetErrorReport(const std::function<void(std::exception_ptr)>& report);

    /// Writes colours, Enabled, Font and CycleMode to the bag; Value and Caption are set at run time.
    void WriteProperties(PropertyBag& bag) const;
    /// Reads them from the bag. A missing value gets its default; a missing font is that of the container.
    /// Does not report changes. Raises 6 or 13 for values of a wrong type, and then changes nothing.
    void ReadProperties(const PropertyBag& bag);

Q_SIGNALS:
    // Arguments are passed by reference and may be changed. keyCode: 65 to 90 for letters, 48 to 57 for
    // digits, 112 to 135 for F1 to F24; keyAscii: the UTF-16 code unit; shift: Shift 1, Ctrl 2, Alt 4, added
    // up; x and y: twips (1/1440 inch) from the upper left corner.

    /// The value has changed, by the user or by the program.
    void Click();
    /// Never emitted: a double click counts as two clicks.
    void DblClick();
    /// If a listener sets keyCode to 0, the box does not get the key.
    void KeyDown(qint16& keyCode, qint16& shift);
    /// If a listener sets keyAscii to 0, the box does not get the key.
    void KeyPress(qint16& keyAscii);
    /// The box still gets the key, whatever a listener sets.
    void KeyUp(qint16& keyCode, qint16& shift);
    /// A button went down. button: left 1, right 2, middle 4.
    void MouseDown(qint16& button, qint16& shift, float& x, float& y);
    /// The pointer moved over the box, with or without a button. button: the sum of the buttons that are
    /// down.
    void MouseMove(qint16& button, qint16& shift, float& x, float& y);
    /// A button went up, and the value is set.
    void MouseUp(qint16& button, qint16& shift, float& x, float& y);

    /// A setter was called; key: the name of the property.
    void PropertyChanged(const QString& key);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Init();
    void ShowColours();
    void SetCheckValue(qint16 value);
    void OnKeyPressed(const QKeyEvent& event, bool& swallow);
    void OnKeyReleased(const QKeyEvent& event);
    void OnMousePressed(const QMouseEvent& event);
    void OnMouseMoved(const QMouseEvent& event);
    void OnMouseReleased(const QMouseEvent& event);

    InnerCheckBox* m_check1;
    qint32 m_backColor = SystemColour::ButtonFace;
    qint32 m_foreColor = SystemColour::ButtonText;
    qint16 m_cycleMode = TwoStateCycle;
    qint16 m_nextValue = Unchecked; // set when the mouse button goes down, used when it goes up
};

} // namespace Orvane
