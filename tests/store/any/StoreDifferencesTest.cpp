// SPDX-License-Identifier: MIT
#include "store/any/StoreDifferences.h"

#include <gtest/gtest.h>
#include <set>

namespace Orvane::Testing {

TEST(StoreDifferencesTest, AreDifferencesOfTestsThatExist)
{
    const testing::UnitTest& program = *testing::UnitTest::GetInstance();
    std::set<std::string> names;
    for (int suite = 0; suite < program.total_test_suite_count(); ++suite) {
        const testing::TestSuite& tests = *program.GetTestSuite(suite);
        for (int test = 0; test < tests.total_test_count(); ++test)
            names.insert(std::string(tests.name()) + '.' + tests.GetTestInfo(test)->name());
    }
    for (const auto& [name, reason] : StoreDifferences())
        EXPECT_TRUE(names.contains(name)) << name << ": " << reason;
}

} // namespace Orvane::Testing
