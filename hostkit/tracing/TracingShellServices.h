// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ForwardingShellServices.h>

namespace Orvane {

class CallTrace;

/// Traces every call to shell services, as "shell.Member(...)".
class TracingShellServices : public ForwardingShellServices
{
public:
    /// Neither is owned; both outlive this object.
    TracingShellServices(IShellServices& services, CallTrace& trace);

protected:
    double IShellServices_ScaleFromIndex(qint32 index) const override;
    qint32 IShellServices_IndexFromScale(double denominator) const override;
    MonochromeBitmap IShellServices_FillPattern(int kind, int number) const override;
    void IShellServices_ShowModal(QWidget* form) override;
    void IShellServices_CloseModal(QWidget* form) override;
    void IShellServices_EnterValue(
        QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title) override;
    qint32 IShellServices_ListBackColour() const override;

private:
    CallTrace& m_trace;
};

} // namespace Orvane
