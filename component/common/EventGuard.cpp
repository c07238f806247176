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

BoxAnswer Show(QWidget* owner, const QString& text, BoxStyle style = BoxStyle::OkExclamation)
{
    static bool showing = false;
    if (showing)
        return BoxAnswer::Close;
    const QScopedValueRollback guard(showing, true);
    return ShowMessageBox(owner ? owner : QApplication::activeWindow(), text, style);
}

// Nothing was wrong with what the user wanted, only with the moment.
bool MayPass(const std::exception& error)
{
    const auto* known = dynamic_cast<const RunTimeError*>(&error);
    return known
        && (known->Number() == int(ErrorNumber::DatabaseLocked)
            || known->Number() == int(ErrorNumber::ConnectionLost));
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

bool ReportOrAskAgain(QWidget* owner, const std::exception& error) noexcept
{
    if (!MayPass(error)) {
        ReportError(owner, error);
        return false;
    }
    try {
        return Show(owner, TextOf(error), BoxStyle::TryAgainExclamation) == BoxAnswer::TryAgain;
    } catch (...) { // as above
        return false;
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
