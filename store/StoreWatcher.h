// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace Orvane {

/// Says that nobody knows how much of an operation is done.
inline constexpr double UnknownShare = -1;

/// Called now and then while a store works, on the thread of the store. done: the part of the operation that
/// is done, from 0 to 1, or UnknownShare. Returns false to cancel the operation. It must not use the store,
/// which refuses everything meanwhile, and raises nothing.
using StoreWatcher = std::function<bool(double done)>;

} // namespace Orvane
