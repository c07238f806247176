// SPDX-License-Identifier: MIT
#include "store/any/StoreDifferences.h"

namespace Orvane::Testing {

const std::map<std::string, std::string>& StoreDifferences()
{
    static const std::map<std::string, std::string> differences = {};
    return differences;
}

} // namespace Orvane::Testing
