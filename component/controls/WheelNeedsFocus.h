// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace Orvane {

/// Lets the wheel change a control only while the control has the keyboard focus. Otherwise the wheel is left
/// to what the control stands in, so that scrolling past it changes nothing; and it does not give the focus.
///
///     new WheelNeedsFocus(*form->cmbScheme);
///
/// Of the filters of a control this one has to be made last: it then meets the wheel first.
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
