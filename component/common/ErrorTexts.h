// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

#include <utility>

namespace Orvane {

/// An error's description in the user's language. A text that is not in the message file, such as one from
/// the host, is returned unchanged.
QString TranslatedDescription(const QString& description);

/// Raises the error with its description translated, if the translation differs from the description.
void RaiseTranslated(const RunTimeError& error);

/// Runs an operation that the host asked for. The component's own errors are passed to the host in the user's
/// language; everything else that is raised is passed on unchanged.
template <typename Action> decltype(auto) WithTranslatedErrors(Action&& action)
{
    try {
        return std::forward<Action>(action)();
    } catch (const RunTimeError& error) {
        RaiseTranslated(error);
        throw;
    }
}

} // namespace Orvane
