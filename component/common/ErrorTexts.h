// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

#include <utility>

namespace Orvane {

/// An error's description in the person's language. A column's name behind it, as in "Type mismatch (Color)",
/// stays. A text that the message file does not know, such as one of the host's, stays as it is.
QString TranslatedDescription(const QString& description);

/// Raises the error with its description translated, when the translation is another text.
void RaiseTranslated(const RunTimeError& error);

/// Runs what the host asked for. An error of the component's own reaches the host in the person's language;
/// everything else that is raised is passed on unchanged.
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
