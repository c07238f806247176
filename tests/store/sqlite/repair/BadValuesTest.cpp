// SPDX-License-Identifier: MIT
#include "store/sqlite/repair/BadValues.h"

#include "store/sqlite/StoreTest.h"

namespace Orvane::Testing {

namespace {

class BadValueSearch : public StoreTest
{
protected:
    BadValueSearch()
    {
        AddLayer(*m_database, 1, QStringLiteral("Roads"));
        AddLayer(*m_database, 2, QStringLiteral("Rivers"));
        AddGroup(*m_database, 1, QStringLiteral("Land"), 1);
        AddMember(*m_database, 1, 1, 1);
    }

    void Run(const char* sql) { m_database->Execute(QLatin1String(sql)); }

    /// "table/row/column/value" of each.
    QStringList Found(BadValueKind kind = BadValueKind::All)
    {
        QStringList lines;
        for (const BadValue& bad : FindBadValues(*m_database, LayerValueRules(), kind).listed)
            lines << QStringList{bad.table, bad.row, bad.column, bad.value}.join(QLatin1Char('/'));
        return lines;
    }

    Value InLayer(const char* column) { return SeekLayer(*m_database, 1)->Field(column); }

    std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::CreateInMemory();
};

} // namespace

TEST_F(BadValueSearch, FindsNothingInRowsAsTheyAreMade)
{
    EXPECT_EQ(Found(), QStringList());
}

TEST_F(BadValueSearch, TakesUnknownValuesAndNumbersInTextsForSound)
{
    for (const LayerColumn& column : LayerColumns) {
        if (column.kind != ColumnKind::Key)
            m_database->Execute(
                QStringLiteral("UPDATE Layers SET %1 = NULL").arg(QLatin1String(column.name)));
    }
    Run("UPDATE LayerGroups SET Expanded = NULL, GroupOrdering = '7'");
    EXPECT_EQ(Found(), QStringList());
}

TEST_F(BadValueSearch, TakesEveryColourAndScaleForSound)
{
    Run("UPDATE Layers SET Color = 4294967295, FillForeColor = -16777216, MaxVisScale = 2000000000.0, "
        "Visible = -1");
    EXPECT_EQ(Found(), QStringList());
}

TEST_F(BadValueSearch, NamesTextsBlobsAndLargeNumbersInEveryColumnOfNumbers)
{
    for (const LayerColumn& column : LayerColumns) {
        if (column.kind == ColumnKind::Key || column.kind == ColumnKind::Text)
            continue;
        const QString name = QLatin1String(column.name);
        for (const char* bad : {"'red'", "x'00ff'", "9e999"}) {
            m_database->Execute(
                QStringLiteral("UPDATE Layers SET %1 = %2 WHERE LayerID = 1").arg(name, QLatin1String(bad)));
            EXPECT_EQ(Found().size(), 1) << column.name << ' ' << bad;
            EXPECT_EQ(Found(BadValueKind::Repairable).size(), 1) << column.name << ' ' << bad;
        }
        m_database->Execute(QStringLiteral("UPDATE Layers SET %1 = NULL").arg(name));
    }
}

TEST_F(BadValueSearch, NamesLayerColumnAndValue)
{
    Run("UPDATE Layers SET Code = 'red' WHERE LayerID = 1");
    Run("UPDATE Layers SET Priority = 2147483648, Name = '' WHERE LayerID = 2");
    Run("UPDATE LayerGroups SET Pseudo = x'00ff'");
    Run("UPDATE LayerGroupMembers SET Ordering = 'last'");
    EXPECT_EQ(
        Found(),
        QStringList(
            {"Layers/Roads/Code/red", "Layers/2/Priority/2147483648", "LayerGroups/Land/Pseudo/00FF",
             "LayerGroupMembers/1/Ordering/last"}));
}

TEST_F(BadValueSearch, WhatIsOutsideItsMeaningIsNamedAndKept)
{
    for (const char* bad :
         {"OverrideMode = 3", "OverrideMode = -1", "FillStyle = 32", "Priority = 256",
          "OutlineStyle = 70000"}) {
        const QString column = QString::fromLatin1(bad).section(QLatin1Char(' '), 0, 0);
        m_database->Execute(QStringLiteral("UPDATE Layers SET %1 WHERE LayerID = 1").arg(QLatin1String(bad)));
        EXPECT_EQ(Found().size(), 1) << bad;
        EXPECT_EQ(Found(BadValueKind::Repairable), QStringList()) << bad;
        RepairBadValues(*m_database, LayerValueRules());
        EXPECT_EQ(Found().size(), 1) << bad;
        m_database->Execute(QStringLiteral("UPDATE Layers SET %1 = NULL").arg(column));
    }
}

TEST_F(BadValueSearch, AnIDBeyond32BitsIsNamedAndKept)
{
    Run("INSERT INTO Layers (LayerID, Name) VALUES (2147483648, 'far')");
    EXPECT_EQ(Found(), QStringList("Layers/far/LayerID/2147483648"));
    RepairBadValues(*m_database, LayerValueRules());
    EXPECT_EQ(Found().size(), 1);
}

TEST_F(BadValueSearch, ARepairSetsTheDefaultsAndNothingElse)
{
    Run("UPDATE Layers SET FillBackColor = 'red', Visible = x'01', MinVisScale = 'y', Style = 5 WHERE "
        "LayerID = 1");
    RepairBadValues(*m_database, LayerValueRules());
    EXPECT_EQ(Found(), QStringList());
    EXPECT_EQ(ToInt32(InLayer("FillBackColor")), 0xFFFFFF);
    EXPECT_EQ(ToInt32(InLayer("Visible")), 1);
    EXPECT_EQ(ToDouble(InLayer("MinVisScale")), 0);
    EXPECT_EQ(ToInt32(InLayer("Style")), 5);
    EXPECT_EQ(ToText(InLayer("Name")), "Roads");
}

TEST_F(BadValueSearch, ListsTheFirstAndCountsTheOthers)
{
    for (qint32 id = 3; id <= 42; ++id)
        AddLayer(*m_database, id, QStringLiteral("Layer"));
    Run("UPDATE Layers SET Code = 'x', Color = 'y'");
    const BadValues found = FindBadValues(*m_database, LayerValueRules(), BadValueKind::All);
    EXPECT_EQ(qint64(found.listed.size()), BadValues::MostListed);
    EXPECT_EQ(found.more, 84 - BadValues::MostListed);
}

TEST_F(BadValueSearch, LongNamesAndValuesAreCut)
{
    m_database->Execute(
        QStringLiteral("UPDATE Layers SET Name = ?1, Code = ?1 WHERE LayerID = 1"), {QString(100000, u'x')});
    const BadValues found = FindBadValues(*m_database, LayerValueRules(), BadValueKind::All);
    ASSERT_EQ(found.listed.size(), 1U);
    EXPECT_EQ(found.listed[0].row.size(), 60);
    EXPECT_EQ(found.listed[0].value.size(), 60);
}

} // namespace Orvane::Testing
