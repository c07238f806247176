// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <vector>

namespace Orvane::Testing {

/// How long it takes until a program that has the map open hears what another has stored: so many times, the
/// shortest first. The map needs a layer 1. Raises errors of the store.
std::vector<std::chrono::microseconds> NewsDelays(const QString& place, int times);

} // namespace Orvane::Testing
