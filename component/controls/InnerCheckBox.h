// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

class QKeyEvent;
class QMouseEvent;

namespace Orvane {

/// The check box inside a CheckBoxPlus. Keyboard, mnemonic and screen reader toggle it between its two
/// states, a greyed box becoming unchecked; the mouse changes nothing by itself: whoever listens sets the
/// value.
///
/// All of its surface reacts to the mouse. A signal about a key comes before the box acts on it, one about
/// the mouse after.
class InnerCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit InnerCheckBox(QWidget* parent);

signals:
    /// swallow: set it to keep the key from the box.
    void KeyPressed(const QKeyEvent& event, bool& swallow);
    void KeyReleased(const QKeyEvent& event);
    void MousePressed(const QMouseEvent& event);
    /// Also sent while no button is down.
    void MouseMoved(const QMouseEvent& event);
    void MouseReleased(const QMouseEvent& event);

protected:
    /// Guarded: what a listener raises is told to the person.
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool hitButton(const QPoint& position) const override;
    void nextCheckState() override;

private:
    bool m_releasingMouse = false;
};

} // namespace Orvane
