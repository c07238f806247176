// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IShellServices.h>
#include <orvane/hostkit/common/ScaleTable.h>
#include <orvane/hostkit/windows/ModalForms.h>

namespace Orvane {

/// Ready-made shell services: the scales of ScaleTable, the patterns of FillPatterns, modal forms in front of
/// the active window, and a value entry popup. Override what differs:
///
///     class MyServices : public StandardShellServices
///     {
///         qint32 IShellServices_ListBackColour() const override { return 0xFFFFFF; }
///     };
class StandardShellServices : public IShellServices
{
public:
    StandardShellServices() = default;

protected:
    double IShellServices_ScaleFromIndex(qint32 index) const override;
    qint32 IShellServices_IndexFromScale(double denominator) const override;
    /// Only kind 7 is supported; raises 9 (subscript out of range) for another kind and for a number outside
    /// 0 to 31.
    MonochromeBitmap IShellServices_FillPattern(int kind, int number) const override;
    void IShellServices_ShowModal(QWidget* form) override;
    void IShellServices_CloseModal(QWidget* form) override;
    void IShellServices_EnterValue(
        QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title) override;
    /// The palette's colour for the background of text entries and lists.
    qint32 IShellServices_ListBackColour() const override;

private:
    ScaleTable m_scales;
    ModalForms m_modalForms;
};

} // namespace Orvane
