// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/CallLog.h"

#include <OrvaneShellLib/IShellServices.h>

#include <functional>

namespace Orvane::Testing {

/// Shell services without a screen: scale index i stands for the denominator 1000 * i, pattern number n has n
/// in its first row, and the modal members only call hooks.
class MemoryShellServices : public IShellServices
{
public:
    /// log: not owned; outlives this object.
    explicit MemoryShellServices(CallLog& log) : m_log(log) { }

    /// Called while a form is shown modally; the form counts as closed when it returns.
    std::function<void(QWidget* form)> OnShowModal;
    /// Called to end a ShowModal that waits.
    std::function<void(QWidget* form)> OnCloseModal;
    /// The user's actions in the value entry popup.
    std::function<void(QWidget* control)> OnEnterValue;
    /// The colour of lists as a BGR integer.
    qint32 listBackColour = 0xFFFFFF;

private:
    double IShellServices_ScaleFromIndex(qint32 index) const override;
    qint32 IShellServices_IndexFromScale(double denominator) const override;
    MonochromeBitmap IShellServices_FillPattern(int kind, int number) const override;
    void IShellServices_ShowModal(QWidget* form) override;
    void IShellServices_CloseModal(QWidget* form) override;
    void IShellServices_EnterValue(
        QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title) override;
    qint32 IShellServices_ListBackColour() const override;

    CallLog& m_log;
};

} // namespace Orvane::Testing
