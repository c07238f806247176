// SPDX-License-Identifier: MIT
#include "hostkit/StandardShellServices.h"

#include "hostkit/common/FillPatterns.h"
#include "hostkit/windows/TextPrompt.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QVariant>
#include <QWidget>

namespace Orvane {

namespace {

} // namespace

double StandardShellServices::IShellServices_ScaleFromIndex(qint32 index) const
{
    return m_scales.Denominator(index);
}

qint32 StandardShellServices::IShellServices_IndexFromScale(double denominator) const
{
    return m_scales.Index(denominator);
}

MonochromeBitmap StandardShellServices::IShellServices_FillPattern(int kind, int number) const
{
    if (kind != FillPatternKind) {
        throw RunTimeError(
            ErrorNumber::SubscriptOutOfRange,
            QCoreApplication::translate("StandardShellServices", "There are no patterns of kind %1.")
                .arg(kind));
    }
    return FillPatterns::Bitmap(number);
}

void StandardShellServices::IShellServices_ShowModal(QWidget* form)
{
    m_modalForms.Run(form);
}

void StandardShellServices::IShellServices_CloseModal(QWidget* form)
{
    m_modalForms.End(form);
}

void StandardShellServices::IShellServices_EnterValue(
    QWidget* control, EntryKind kind, double minimum, double maximum, const QString& title)
{
    const QPointer<QWidget> guarded(control);
    const QString current = control->property("text").toString();
    TextPrompt prompt({title, current, kind, minimum, maximum, 0}, control->window());
    prompt.SetLabel(QCoreApplication::translate("StandardShellServices", "Value:"));
    prompt.PlaceOver(*control);
    const PromptAnswer answer = prompt.Ask();
    if (answer.accepted && guarded)
        guarded->setProperty("text", answer.text);
}

qint32 StandardShellServices::IShellServices_ListBackColour() const
{
    const QColor colour = QGuiApplication::palette().color(QPalette::Base);
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

} // namespace Orvane
