// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace Orvane {

/// Lets the wheel change a control only while the control has the keyboard focus. Otherwise the parent gets
/// the wheel event, so that scrolling past the control changes nothing. The wheel does not set the focus.
///
///     new WheelNeedsFocus(*form->cmbScheme);
///
/// Install this filter last on a control, so that it gets the wheel event first.
class WheelNeedsFocus : public QObject
{
    Q_OBJECT

public:
    /// Owned by the control.
    explicit WheelNeedsFocus(QWidget& control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_control;
};

} // namespace Orvane
