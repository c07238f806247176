// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingShellServices.h"

#include "hostkit/tracing/CallTrace.h"

namespace Orvane {

TracingShellServices::TracingShellServices(IShellServices& services, CallTrace& trace)
    : ForwardingShellServices(services), m_trace(trace)
{
}

double TracingShellServices::IShellServices_ScaleFromIndex(qint32 index) const
{
    return m_trace.Question(
        "shell.ScaleFromIndex", [&] { return Wrapped().ScaleFromIndex(index); }, index);
}

qint32 TracingShellServices::IShellServices_IndexFromScale(double denominator) const
{
    const auto ask = [&] { return Wrapped().IndexFromScale(denominator); };
    return m_trace.Question("shell.IndexFromScale", ask, denominator);
}

MonochromeBitmap TracingShellServices::IShellServices_FillPattern(int kind, int number) const
{
    const auto ask = [&] { return Wrapped().FillPattern(kind, number); };
    return m_trace.Question("shell.FillPattern", ask, kind, number);
}

void TracingShellServices::IShellServices_ShowModal(QWidget* form)
{
    m_trace.Command(
        "shell.ShowModal", [&] { Wrapped().ShowModal(form); }, TraceWord{"form"});
}

void TracingShellServices::IShellServices_CloseModal(QWidget* form)
{
    m_trace.Command(
        "shell.CloseModal", [&] { Wrapped().CloseModal(form); }, TraceWord{"form"});
}

void TracingShellServices::IShellServices_EnterValue(
    QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title)
{
    const auto enter = [&] { Wrapped().EnterValue(control, kind, minimum, maximum, title); };
    m_trace.Command("shell.EnterValue", enter, TraceWord{"control"}, kind, minimum, maximum, title);
}

qint32 TracingShellServices::IShellServices_ListBackColour() const
{
    return m_trace.Question("shell.ListBackColour", [&] { return Wrapped().ListBackColour(); });
}

} // namespace Orvane
