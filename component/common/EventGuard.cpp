// SPDX-License-Identifier: MIT
#include "component/common/EventGuard.h"

#include "component/common/ErrorTexts.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QApplication>
#include <QScopedValueRollback>

namespace Orvane {

namespace {

QString TextOf(const std::exception& error)
{
    if (const auto* known = dynamic_cast<const RunTimeError*>(&error))
        return TranslatedDescription(known->Description());
    return TranslateMsg("An unexpected error stopped the action: ^1", QString::fromUtf8(error.what()));
}

void Show(QWidget* owner, const QString& text)
{
    static bool showing = false;
    if (showing)
        return;
    const QScopedValueRollback guard(showing, true);
    ShowMessageBox(owner ? owner : QApplication::activeWindow(), text, BoxStyle::OkExclamation);
}

} // namespace

void ReportError(QWidget* owner, const std::exception& error) noexcept
{
    if (IsCancellation(error))
        return;
    try {
        Show(owner, TextOf(error));
    } catch (...) { // no memory for a message: nothing more can be shown
    }
}

void ReportUnknownError(QWidget* owner) noexcept
{
    try {
        Show(owner, TranslateMsg("An unexpected error stopped the action."));
    } catch (...) { // as above
    }
}

} // namespace Orvane
