// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/RunTimeError.h>

namespace Orvane {

/// The number of a RunTimeError by which a host says that the user cancelled the operation: everything is as
/// it was before. The component then shows what is stored, and no message.
inline constexpr auto UserCancelled = ErrorNumber(18);

/// True for an error of that kind.
inline bool IsCancellation(const std::exception& error)
{
    const auto* known = dynamic_cast<const RunTimeError*>(&error);
    return known && known->Number() == int(UserCancelled);
}

} // namespace Orvane
