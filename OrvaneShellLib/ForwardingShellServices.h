// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IShellServices.h>

namespace Orvane {

/// Passes every call on to another shell services object. Derive from it and override the member to watch,
/// change or block.
class ForwardingShellServices : public IShellServices
{
public:
    /// services: not owned; must outlive this object.
    explicit ForwardingShellServices(IShellServices& services) : m_services(services) { }

protected:
    double IShellServices_ScaleFromIndex(qint32 index) const override
    {
        return m_services.ScaleFromIndex(index);
    }
    qint32 IShellServices_IndexFromScale(double denominator) const override
    {
        return m_services.IndexFromScale(denominator);
    }
    MonochromeBitmap IShellServices_FillPattern(int kind, int number) const override
    {
        return m_services.FillPattern(kind, number);
    }
    void IShellServices_ShowModal(QWidget* form) override { m_services.ShowModal(form); }
    void IShellServices_CloseModal(QWidget* form) override { m_services.CloseModal(form); }
    void IShellServices_EnterValue(
        QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title) override
    {
        m_services.EnterValue(control, kind, minimum, maximum, title);
    }
    qint32 IShellServices_ListBackColour() const override { return m_services.ListBackColour(); }

    /// The wrapped services, for use in overrides.
    IShellServices& Wrapped() const { return m_services; }

private:
    IShellServices& m_services;
};

} // namespace Orvane
