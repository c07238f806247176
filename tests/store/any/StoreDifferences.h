// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace Orvane::Testing {

/// The tests of this program that do not hold for its kind of store, each as "Suite.Name" with the reason.
const std::map<std::string, std::string>& StoreDifferences();

/// Skips the test that runs if it does not hold here. Call it in SetUp.
void SkipDifferences();

} // namespace Orvane::Testing
