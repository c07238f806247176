// SPDX-License-Identifier: MIT
#include "store/postgres/MapTest.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "support/Dice.h"
#include "support/Errors.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <map>
#include <vector>

namespace Orvane::Testing {

namespace {

constexpr qint32 Keys = 60;
constexpr int DeepestLevel = 3;

struct Row {
    qint32 code = 0;
    bool visible = true;
    QString name;

    bool operator==(const Row&) const = default;
};
using Table = std::map<qint32, Row>;

Row RowOf(const IRecordset& row)
{
    return {ToInt32(row.Field("Code")), ToBoolean(row.Field("Visible")), ToText(row.Field("Name"))};
}

/// Edits, statements and transactions by chance on a map, and on paper what must come of them.
class EditsByChance : public MapTest
{
protected:
    void Run(unsigned seed, int steps)
    {
        m_dice = Dice(seed);
        m_store = PostgresLayerDatabase::Open(SharedServer().Place(m_schema));
        m_cursor = Cursor();
        m_isOnRow = false;
        for (int step = 0; step < steps && !HasFailure(); ++step)
            Act();
        while (m_levels.size() > 1 && !HasFailure())
            Commit();
        ExpectAll();
        m_cursor.reset();
        m_store.reset();
    }

private:
    void Act()
    {
        const int choice = m_dice.Below(100);
        if (choice < 35)
            Seek();
        else if (choice < 60)
            Edit();
        else if (choice < 66)
            Walk();
        else if (choice < 72)
            Change();
        else if (choice < 76)
            AskForOne();
        else if (choice < 78)
            ExpectAll();
        else if (choice < 82)
            OthersChange();
        else if (choice < 90)
            Begin();
        else if (choice < 95)
            Commit();
        else
            Rollback();
    }

    std::unique_ptr<IRecordset> Cursor() const
    {
        auto cursor = m_store->OpenRecordset(QStringLiteral("Layers"));
        cursor->Index("LayerIDIDX");
        return cursor;
    }
    Table& Paper() { return m_levels.back(); }
    qint32 AnyKey() { return m_dice.Below(Keys); }

    // The row on which the cursor stands, which may have been changed or deleted since it was sought.
    void ExpectRow()
    {
        const auto row = Paper().find(m_key);
        if (row == Paper().end()) {
            EXPECT_NE(ErrorOf([&] { m_cursor->Field("Code"); }), 0) << m_key;
            m_isOnRow = false;
            return;
        }
        EXPECT_EQ(RowOf(*m_cursor), row->second) << m_key;
    }
    void GoTo(qint32 key)
    {
        m_key = key;
        m_cursor->Seek("=", key);
        m_isOnRow = !m_cursor->NoMatch();
        EXPECT_EQ(m_isOnRow, Paper().count(key) == 1) << key;
    }
    void Seek()
    {
        if (m_isOnRow)
            ExpectRow();
        GoTo(AnyKey());
        if (m_isOnRow)
            ExpectRow();
        if (m_isOnRow && m_dice.Chance(10))
            Next();
    }
    void Next()
    {
        m_cursor->MoveNext();
        const auto next = Paper().upper_bound(m_key);
        m_isOnRow = !m_cursor->AtEOF();
        ASSERT_EQ(m_isOnRow, next != Paper().end());
        if (!m_isOnRow)
            return;
        m_key = next->first;
        ExpectRow();
    }
    void Edit()
    {
        GoTo(AnyKey());
        if (!m_isOnRow)
            return;
        Row& row = Paper()[m_key];
        m_cursor->Edit();
        if (m_dice.Chance(70))
            m_cursor->SetField("Code", row.code = m_dice.Below(100));
        if (m_dice.Chance(40))
            m_cursor->SetField("Visible", row.visible = m_dice.Chance(50));
        if (m_dice.Chance(20))
            m_cursor->SetField("Name", row.name = QString(m_dice.Below(600), u'n'));
        m_cursor->Update();
        if (m_dice.Chance(20))
            ExpectRow();
    }
    void Walk()
    {
        const auto layers = Cursor();
        const auto rows = m_store->OpenRecordset(QStringLiteral("SELECT LayerID FROM Layers ORDER BY Name"));
        for (; !rows->AtEOF(); rows->MoveNext()) {
            const qint32 key = ToInt32(rows->Field("LayerID"));
            layers->Seek("=", key);
            ASSERT_FALSE(layers->NoMatch());
            EXPECT_EQ(RowOf(*layers), Paper().at(key)) << key;
            if (m_dice.Chance(90))
                continue;
            layers->Edit();
            layers->SetField("Code", Paper().at(key).code = m_dice.Below(100));
            layers->Update();
        }
    }
    void Change()
    {
        const qint32 key = AnyKey();
        const qint32 code = m_dice.Below(100);
        const auto run = [&](const char* sql, const std::vector<Value>& values) {
            if (m_dice.Chance(50))
                m_store->Send(QLatin1String(sql), values);
            else
                m_store->Execute(QLatin1String(sql), values);
        };
        if (Paper().count(key) == 0) {
            run("INSERT INTO Layers (LayerID, Name, Code) VALUES (?1, ?2, ?3)",
                {key, QStringLiteral("new"), code});
            Paper()[key] = {code, true, QStringLiteral("new")};
        } else if (m_dice.Chance(30)) {
            run("DELETE FROM Layers WHERE LayerID = ?1", {key});
            Paper().erase(key);
        } else {
            run("UPDATE Layers SET Code = Code + 1 WHERE LayerID > ?1", {key});
            for (auto row = Paper().upper_bound(key); row != Paper().end(); ++row)
                ++row->second.code;
        }
    }
    void AskForOne()
    {
        const qint32 key = AnyKey();
        const auto asked = m_store->OpenRecordset(LayerQueries::OneLayer(key));
        ASSERT_EQ(!asked->AtEOF(), Paper().count(key) == 1) << key;
        if (!asked->AtEOF())
            EXPECT_EQ(RowOf(*asked), Paper().at(key)) << key;
    }
    void ExpectAll()
    {
        Table stored;
        const auto rows = m_store->OpenRecordset(QStringLiteral("SELECT * FROM Layers"));
        for (; !rows->AtEOF(); rows->MoveNext())
            stored[ToInt32(rows->Field("LayerID"))] = RowOf(*rows);
        EXPECT_EQ(stored, Paper());
    }
    // Within a transaction that would not be seen, or be in its way.
    void OthersChange()
    {
        if (m_levels.size() > 1)
            return;
        Owner().Run("UPDATE Layers SET Code = 500 WHERE LayerID % 7 = 3");
        for (auto& [key, row] : Paper())
            row.code = key % 7 == 3 ? 500 : row.code;
        m_isOnRow = false; // a row that was sought before is as it was
    }

    void Begin()
    {
        if (int(m_levels.size()) > DeepestLevel)
            return;
        m_store->BeginTrans();
        m_levels.push_back(Paper());
    }
    void Commit()
    {
        if (m_levels.size() == 1)
            return;
        m_store->CommitTrans();
        m_levels.erase(m_levels.end() - 2);
    }
    void Rollback()
    {
        if (m_levels.size() == 1)
            return;
        m_store->Rollback();
        m_levels.pop_back();
    }

    Dice m_dice{1};
    std::unique_ptr<PostgresLayerDatabase> m_store;
    std::unique_ptr<IRecordset> m_cursor;
    std::vector<Table> m_levels{1}; // as it was when each level began, and as it is
    qint32 m_key = 0;
    bool m_isOnRow = false;
};

} // namespace

TEST_F(EditsByChance, LeaveWhatTheyLeaveOnPaper)
{
    for (unsigned seed = 1; seed <= 5 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Run(seed, 800);
    }
}

} // namespace Orvane::Testing
