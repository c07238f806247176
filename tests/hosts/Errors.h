// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <optional>

namespace Orvane::Testing {

/// The error that the action raises; nothing when it raises none.
template <typename Action> std::optional<RunTimeError> ErrorOf(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// The number of the error that the action raises, 0 when it raises none.
template <typename Action> int ErrorNumberOf(Action&& action)
{
    const auto error = ErrorOf(action);
    return error ? error->Number() : 0;
}

inline constexpr int overflowError = 6;
inline constexpr int subscriptError = 9;
inline constexpr int typeMismatchError = 13;

} // namespace Orvane::Testing
