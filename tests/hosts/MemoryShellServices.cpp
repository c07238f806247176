// SPDX-License-Identifier: MIT
#include "hosts/MemoryShellServices.h"

#include <algorithm>
#include <cmath>

namespace Orvane::Testing {

double MemoryShellServices::IShellServices_ScaleFromIndex(qint32 index) const
{
    m_log.Add(CallKind::Shell, "ScaleFromIndex", {index});
    return 1000.0 * index;
}

qint32 MemoryShellServices::IShellServices_IndexFromScale(double denominator) const
{
    m_log.Add(CallKind::Shell, "IndexFromScale", {denominator});
    return qint32(std::clamp(std::round(denominator / 1000.0), 1.0, 255.0));
}

MonochromeBitmap MemoryShellServices::IShellServices_FillPattern(int kind, int number) const
{
    m_log.Add(CallKind::Shell, "FillPattern", {qint32(kind), qint32(number)});
    QByteArray rows(8, '\x11');
    rows[0] = char(number);
    return {8, 8, rows};
}

void MemoryShellServices::IShellServices_ShowModal(QWidget* form)
{
    m_log.Add(CallKind::Shell, "ShowModal");
    if (OnShowModal)
        OnShowModal(form);
}

void MemoryShellServices::IShellServices_CloseModal(QWidget* form)
{
    m_log.Add(CallKind::Shell, "CloseModal");
    if (OnCloseModal)
        OnCloseModal(form);
}

void MemoryShellServices::IShellServices_EnterValue(
    QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title)
{
    const QString kindText = kind == EntryKind::Integer ? QStringLiteral("Integer") : QStringLiteral("Text");
    m_log.Add(CallKind::Shell, "EnterValue", {kindText, minimum, maximum, title});
    if (OnEnterValue)
        OnEnterValue(control);
}

qint32 MemoryShellServices::IShellServices_ListBackColour() const
{
    m_log.Add(CallKind::Shell, "ListBackColour");
    return listBackColour;
}

} // namespace Orvane::Testing
