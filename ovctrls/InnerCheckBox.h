// SPDX-License-Identifier: MIT
#pragma once

#include "ovctrls/ListenerErrors.h"

#include <QCheckBox>

class QKeyEvent;
class QMouseEvent;

namespace Orvane {

/// The check box inside a CheckBoxPlus. Keyboard, mnemonic and screen reader toggle it between its two
/// states; a greyed box becomes unchecked. The mouse changes nothing by itself: the listener sets the value.
///
/// Its whole surface reacts to the mouse. A signal about a key is emitted before the box acts on the key, a
/// signal about the mouse after it.
class InnerCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit InnerCheckBox(QWidget* parent);

    void SetErrorReport(ListenerErrors::Report report) { m_errors.SetReport(std::move(report)); }
    const ListenerErrors& Errors() const { return m_errors; }

Q_SIGNALS:
    /// swallow: set it to true to keep the key from the box.
    void KeyPressed(const QKeyEvent& event, bool& swallow);
    void KeyReleased(const QKeyEvent& event);
    void MousePressed(const QMouseEvent& event);
    /// Also sent while no button is down.
    void MouseMoved(const QMouseEvent& event);
    void MouseReleased(const QMouseEvent& event);

protected:
    /// Guarded: what a listener raises is reported.
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool hitButton(const QPoint& position) const override;
    void nextCheckState() override;

private:
    ListenerErrors m_errors;
    bool m_releasingMouse = false;
};

} // namespace Orvane
