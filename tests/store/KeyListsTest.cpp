// SPDX-License-Identifier: MIT
#include "store/KeyLists.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

#include <algorithm>
#include <gmock/gmock.h>
#include <numeric>
#include <set>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

std::vector<qint32> NumbersOf(const std::vector<Value>& values)
{
    std::vector<qint32> numbers(values.size());
    std::transform(values.begin(), values.end(), numbers.begin(), [](const Value& v) { return ToInt32(v); });
    return numbers;
}

TEST(KeyListsTest, FewKeysAreOneListAfterTheOtherValues)
{
    QStringList lists;
    KeyLists::ForEachBlock(
        {7, 9}, {Value(3), Value(4)}, [&](const QString& list, const std::vector<Value>& values) {
            lists << list;
            EXPECT_THAT(NumbersOf(values), ElementsAre(3, 4, 7, 9));
        });
    EXPECT_EQ(lists, QStringList(QStringLiteral("(?3, ?4)")));
}

TEST(KeyListsTest, TheLastKeyIsRepeatedUntilTheListHasAUsualLength)
{
    KeyLists::ForEachBlock({1, 2, 3, 4, 5}, {}, [](const QString&, const std::vector<Value>& values) {
        EXPECT_THAT(NumbersOf(values), ElementsAre(1, 2, 3, 4, 5, 5, 5, 5));
    });
}

TEST(KeyListsTest, ManyKeysComeInFullBlocksAndARest)
{
    std::vector<qint32> keys(1201);
    std::iota(keys.begin(), keys.end(), 1);
    std::vector<std::size_t> sizes;
    std::set<qint32> visited;
    KeyLists::ForEachBlock(keys, {}, [&](const QString&, const std::vector<Value>& values) {
        sizes.push_back(values.size());
        const std::vector<qint32> block = NumbersOf(values);
        visited.insert(block.begin(), block.end());
    });
    EXPECT_THAT(sizes, ElementsAre(500, 500, 256));
    EXPECT_EQ(visited, std::set<qint32>(keys.begin(), keys.end()));
}

TEST(KeyListsTest, NoKeysNeedNoStatement)
{
    KeyLists::ForEachBlock({}, {Value(1)}, [](const QString&, const std::vector<Value>&) { FAIL(); });
}

} // namespace
} // namespace Orvane::Testing
