// SPDX-License-Identifier: MIT
#include "store/any/StoreDifferences.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

void SkipDifferences()
{
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const auto difference
        = StoreDifferences().find(std::string(test->test_suite_name()) + '.' + test->name());
    if (difference != StoreDifferences().end())
        GTEST_SKIP() << difference->second;
}

} // namespace Orvane::Testing
