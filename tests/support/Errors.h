// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

#include <optional>

namespace Orvane::Testing {

/// The error that the act raises; nothing when it raises none.
template <typename Act> std::optional<RunTimeError> RaisedBy(Act&& act)
{
    try {
        act();
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// The number of the error that the act raises, 0 when it raises none.
template <typename Act> int ErrorOf(Act&& act)
{
    const auto error = RaisedBy(act);
    return error ? error->Number() : 0;
}

/// The description of the error that the act raises, empty when it raises none.
template <typename Act> QString DescriptionOf(Act&& act)
{
    const auto error = RaisedBy(act);
    return error ? error->Description() : QString();
}

inline constexpr int overflowError = 6;
inline constexpr int subscriptError = 9;
inline constexpr int typeMismatchError = 13;

} // namespace Orvane::Testing
