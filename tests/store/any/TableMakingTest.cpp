// SPDX-License-Identifier: MIT
#include "store/StoreTable.h"
#include "store/any/AnyStoreTest.h"

namespace Orvane::Testing {

namespace {

class TableMaking : public AnyStoreTest
{
protected:
    static StoreTable Notes()
    {
        return {
            QStringLiteral("Notes"),
            {{QStringLiteral("LayerID"),
              StoreType::Whole,
              StoreColumn::Nulls::Refused,
              {},
              QStringLiteral("Layers"),
              QStringLiteral("LayerID")},
             {QStringLiteral("Page"), StoreType::Whole, StoreColumn::Nulls::Refused},
             {QStringLiteral("Text"), StoreType::Text, StoreColumn::Nulls::Refused,
              QStringLiteral("'none'")}},
            {QStringLiteral("LayerID"), QStringLiteral("Page")},
            {},
            {QStringLiteral("Text")}};
    }

    int Run(const char* sql)
    {
        return ErrorOf([&] { m_database->Execute(QString::fromUtf8(sql)); });
    }

    const std::unique_ptr<ILayerStore> m_database = NamelessStore();
};

} // namespace

TEST_F(TableMaking, MakesATableThatIsMissing)
{
    EXPECT_FALSE(m_database->HasTable(QStringLiteral("Notes")));
    m_database->PrepareTable(Notes());
    EXPECT_TRUE(m_database->HasTable(QStringLiteral("notes")));
    EXPECT_TRUE(m_database->HasColumn(QStringLiteral("Notes"), QStringLiteral("page")));
    EXPECT_FALSE(m_database->HasColumn(QStringLiteral("Notes"), QStringLiteral("Pages")));
    EXPECT_FALSE(m_database->HasColumn(QStringLiteral("Pages"), QStringLiteral("Page")));
}

TEST_F(TableMaking, KeepsTheRowsOfATableThatIsThere)
{
    m_database->PrepareTable(Notes());
    AddLayer(*m_database, 1, QStringLiteral("Roads"));
    ASSERT_EQ(Run("INSERT INTO Notes (LayerID, Page) VALUES (1, 2)"), 0);
    m_database->PrepareTable(Notes());
    EXPECT_EQ(Column(*m_database, QStringLiteral("SELECT Page FROM Notes"), "Page"), std::vector<qint32>{2});
}

TEST_F(TableMaking, ARowGoesWithTheOneThatItRefersTo)
{
    m_database->PrepareTable(Notes());
    AddLayer(*m_database, 1, QStringLiteral("Roads"));
    ASSERT_EQ(Run("INSERT INTO Notes (LayerID, Page) VALUES (1, 2)"), 0);
    EXPECT_NE(Run("INSERT INTO Notes (LayerID, Page) VALUES (9, 2)"), 0) << "there is no layer 9";
    ASSERT_EQ(Run("DELETE FROM Layers"), 0);
    EXPECT_TRUE(Column(*m_database, QStringLiteral("SELECT Page FROM Notes"), "Page").empty());
}

TEST_F(TableMaking, AddsTheColumnsThatAnOlderTableLacks)
{
    ASSERT_EQ(Run("CREATE TABLE Notes (LayerID INTEGER, Page INTEGER, PRIMARY KEY (LayerID, Page))"), 0);
    ASSERT_EQ(Run("INSERT INTO Notes VALUES (1, 2)"), 0);
    m_database->PrepareTable(Notes());
    const auto row = m_database->OpenQuery(QStringLiteral("SELECT Text FROM Notes"));
    EXPECT_EQ(ToText(row->Field("Text")), QStringLiteral("none"));
}

TEST_F(TableMaking, RefusesUniqueValuesTwice)
{
    StoreTable table = Notes();
    table.unique = {QStringLiteral("Page")};
    m_database->PrepareTable(table);
    AddLayer(*m_database, 1, QStringLiteral("Roads"));
    AddLayer(*m_database, 2, QStringLiteral("Rivers"));
    EXPECT_EQ(Run("INSERT INTO Notes (LayerID, Page) VALUES (1, 2)"), 0);
    EXPECT_NE(Run("INSERT INTO Notes (LayerID, Page) VALUES (2, 2)"), 0);
}

TEST_F(TableMaking, CannotBeDoneInAReadOnlyDatabase)
{
    const auto reader = Opened(MadeStore(), OpenMode::ReadOnly);
    EXPECT_EQ(ErrorOf([&] { reader->PrepareTable(Notes()); }), int(ErrorNumber::DatabaseReadOnly));
}

} // namespace Orvane::Testing
