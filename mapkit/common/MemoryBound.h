// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane::MemoryBound {

/// How much memory the features of one layer, or the values of one of its attributes, may use, in bytes: data
/// without an end must not use all of it.
double MostBytes();

} // namespace Orvane::MemoryBound
