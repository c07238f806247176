// SPDX-License-Identifier: MIT
#include "store/StoreTable.h"
#include "store/any/AnyStoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <algorithm>
#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class TableList : public AnyStoreTest
{
protected:
    static StoreTable Notes()
    {
        using Nulls = StoreColumn::Nulls;
        const auto layerID = QStringLiteral("LayerID");
        const auto page = QStringLiteral("Page");
        return {
            QStringLiteral("Notes"),
            {{layerID, StoreType::Whole, Nulls::Refused, {}, QStringLiteral("Layers"), layerID},
             {page, StoreType::Whole, Nulls::Refused, QStringLiteral("-1")},
             {QStringLiteral("Text"), StoreType::Text, Nulls::Refused, QStringLiteral("'it''s'")},
             {QStringLiteral("IsShown"), StoreType::Flag, Nulls::Allowed, QStringLiteral("TRUE")},
             {QStringLiteral("Height"), StoreType::Real}},
            {layerID, page},
            {QStringLiteral("Height")},
            {QStringLiteral("Text")}};
    }
    // The table as the store tells it.
    StoreTable Told(const QString& name)
    {
        const std::vector<StoreTable> tables = m_database->Tables();
        const auto found = std::find_if(
            tables.begin(), tables.end(), [&](const StoreTable& table) { return table.name == name; });
        EXPECT_NE(found, tables.end()) << qPrintable(name);
        return found == tables.end() ? StoreTable() : *found;
    }

    const std::unique_ptr<ILayerStore> m_database = NamelessStore();
};

} // namespace

TEST_F(TableList, TellsATableAsItWasPrepared)
{
    const StoreTable notes = Notes();
    m_database->PrepareTable(notes);
    const StoreTable told = Told(notes.name);
    ASSERT_EQ(told.columns.size(), notes.columns.size());
    for (size_t i = 0; i < told.columns.size(); ++i) {
        const StoreColumn& column = told.columns[i];
        const StoreColumn& expected = notes.columns[i];
        EXPECT_EQ(column.name, expected.name);
        EXPECT_EQ(column.type, expected.type) << qPrintable(column.name);
        EXPECT_EQ(column.nulls, expected.nulls) << qPrintable(column.name);
        EXPECT_EQ(column.defaultValue, expected.defaultValue);
        EXPECT_EQ(column.refersTo, expected.refersTo);
        EXPECT_EQ(column.refersToColumn, expected.refersToColumn);
    }
    EXPECT_EQ(told.key, notes.key);
    EXPECT_EQ(told.unique, notes.unique);
    EXPECT_EQ(told.indexed, notes.indexed);
}

TEST_F(TableList, TellsTheTablesOfLayersAndGroupsButNotItsOwn)
{
    std::vector<QString> names;
    for (const StoreTable& table : m_database->Tables())
        names.push_back(table.name);
    EXPECT_THAT(
        names,
        testing::UnorderedElementsAre(
            QStringLiteral("Layers"), QStringLiteral("LayerGroups"), QStringLiteral("LayerGroupMembers")));
    EXPECT_THAT(Told(QStringLiteral("Layers")).key, ElementsAre(QStringLiteral("LayerID")));
    const StoreTable members = Told(QStringLiteral("LayerGroupMembers"));
    EXPECT_THAT(members.key, ElementsAre(QStringLiteral("GroupID"), QStringLiteral("LayerID")));
    EXPECT_EQ(members.columns.front().refersTo, QStringLiteral("LayerGroups"));
}

TEST_F(TableList, ATableThatWasRolledBackIsNotTold)
{
    {
        const Transaction transaction(*m_database);
        m_database->PrepareTable(Notes());
        EXPECT_EQ(m_database->Tables().size(), 4U);
    }
    EXPECT_EQ(m_database->Tables().size(), 3U);
}

} // namespace Orvane::Testing
