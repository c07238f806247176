// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <optional>

namespace Orvane::Testing {

/// What the action raises; nothing when it does not.
template <typename Action> std::optional<RunTimeError> ErrorOf(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// The number of what the action raises, 0 when it does not.
template <typename Action> int ErrorNumberOf(Action&& action)
{
    const auto error = ErrorOf(action);
    return error ? error->Number() : 0;
}

inline constexpr int overflowError = 6;
inline constexpr int subscriptError = 9;
inline constexpr int typeMismatchError = 13;

} // namespace Orvane::Testing
