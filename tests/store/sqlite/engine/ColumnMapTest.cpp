// SPDX-License-Identifier: MIT
#include "store/shared/ColumnMap.h"

#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/engine/SqliteStatement.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class ColumnMap : public testing::Test
{
protected:
    int Find(std::string_view name) { return m_statement.FindColumn(name); }

    SqliteConnection m_connection{QString(), SqliteConnection::Access::ReadWrite, {}};
    SqliteStatement m_statement{
        m_connection, QStringLiteral("SELECT 1 AS LayerID, 2 AS Name, 3 AS Code, 4 AS Name, 5 AS \"\"")};
};

} // namespace

TEST_F(ColumnMap, FindsAColumnInAnyCase)
{
    EXPECT_EQ(Find("Code"), 2);
    EXPECT_EQ(Find("CODE"), 2);
    EXPECT_EQ(Find("code"), 2);
}

TEST_F(ColumnMap, MeansTheFirstOfTwoColumnsWithOneName)
{
    EXPECT_EQ(Find("Name"), 1);
}

TEST_F(ColumnMap, KnowsNoNameThatOnlyBeginsLikeAColumn)
{
    EXPECT_EQ(Find("Cod"), -1);
    EXPECT_EQ(Find("Codes"), -1);
    EXPECT_EQ(Find("Layer"), -1);
}

TEST_F(ColumnMap, AnUnknownNameDoesNotDisturbTheOrderThatIsRemembered)
{
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(Find("LayerID"), 0);
        EXPECT_EQ(Find("Missing"), -1);
        EXPECT_EQ(Find("Code"), 2);
    }
}

TEST_F(ColumnMap, NamesAreFoundInWhateverOrderTheyAreAskedFor)
{
    const std::vector<std::pair<const char*, int>> columns = {{"LayerID", 0}, {"Name", 1}, {"Code", 2}};
    for (size_t i = 0; i < 60; ++i) {
        const auto& [name, position] = columns[(i * i + i / 7) % columns.size()];
        EXPECT_EQ(Find(name), position) << name;
    }
}

TEST_F(ColumnMap, EveryMixtureOfCasesIsFoundHoweverManyThereAre)
{
    for (int mixture = 0; mixture < 1024; ++mixture) {
        std::string name = "LAYERID";
        for (size_t i = 0; i < name.size(); ++i) {
            if (mixture & (1 << i))
                name[i] = char(std::tolower(name[i]));
        }
        ASSERT_EQ(Find(name), 0) << name;
        ASSERT_EQ(Find("Code"), 2);
    }
}

TEST_F(ColumnMap, AColumnWithoutANameIsFoundByTheEmptyName)
{
    EXPECT_EQ(Find(""), 4);
    EXPECT_EQ(Find(std::string_view()), 4);
}

} // namespace Orvane::Testing
