// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/MonochromeBitmap.h>
#include <orvane/OrvaneShellLib/PromptRequest.h>

#include <QString>

class QWidget;

namespace Orvane {

/// Services of the host's shell: scales, patterns, modal windows. Implemented by the host, which owns it and
/// keeps it alive as long as the component holds it.
///
/// All calls are made on the user-interface thread. An error that a member raises reaches the user in the
/// component's error message, or the host through the call that led to it. If it is raised while a list is
/// painted, that sample stays unpainted.
class IShellServices
{
public:
    virtual ~IShellServices() = default;
    IShellServices(const IShellServices&) = delete;
    IShellServices& operator=(const IShellServices&) = delete;

    /// The denominator that a scale index stands for, e.g. 50000 for 1:50000. index: 1 to 255; for other
    /// values the result is up to the host.
    double ScaleFromIndex(qint32 index) const { return IShellServices_ScaleFromIndex(index); }

    /// The index whose denominator is nearest to the one given; the inverse of ScaleFromIndex.
    qint32 IndexFromScale(double denominator) const { return IShellServices_IndexFromScale(denominator); }

    /// The bitmap of a pattern. kind: 7 for fill patterns, whose numbers are 0 to 31.
    MonochromeBitmap FillPattern(int kind, int number) const
    {
        return IShellServices_FillPattern(kind, number);
    }

    /// Shows the form modally, in front of the window that is active, and returns when it is closed through
    /// CloseModal or by the user. The caller keeps ownership of the form.
    void ShowModal(QWidget* form) { IShellServices_ShowModal(form); }

    /// Ends the ShowModal call for the form. Does nothing when the form is not shown modally.
    void CloseModal(QWidget* form) { IShellServices_CloseModal(form); }

    /// Opens the host's value entry popup over a text control and puts the entered value into the control's
    /// "text" property; returns when the popup has closed. If the user cancels, the text stays as it is.
    /// title: translated. minimum and maximum: inclusive.
    void EnterValue(QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title)
    {
        IShellServices_EnterValue(control, kind, minimum, maximum, title);
    }

    /// The background colour of lists, as a BGR integer (red in the low byte).
    qint32 ListBackColour() const { return IShellServices_ListBackColour(); }

protected:
    IShellServices() = default;

private:
    virtual double IShellServices_ScaleFromIndex(qint32 index) const = 0;
    virtual qint32 IShellServices_IndexFromScale(double denominator) const = 0;
    virtual MonochromeBitmap IShellServices_FillPattern(int kind, int number) const = 0;
    virtual void IShellServices_ShowModal(QWidget* form) = 0;
    virtual void IShellServices_CloseModal(QWidget* form) = 0;
    virtual void IShellServices_EnterValue(
        QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title)
        = 0;
    virtual qint32 IShellServices_ListBackColour() const = 0;
};

} // namespace Orvane
