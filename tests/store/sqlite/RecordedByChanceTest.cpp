// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/sqlite/ChangesOnPaper.h"
#include "store/sqlite/StoreTest.h"
#include "support/Dice.h"
#include "support/Errors.h"

#include <array>

namespace Orvane::Testing {

namespace {

constexpr qint32 Keys = 24;
constexpr int DeepestLevel = 3;
constexpr int MostActsInARow = 25;

const std::vector<std::pair<std::string, int>> AllTables
    = {{"Layers", 1}, {"LayerGroups", 1}, {"LayerGroupMembers", 2}, {"Marks", 2}, {"Words", 1}};

/// Acts by chance on a map that is recorded, with all rows read again by SQLite alone.
class RecordedByChance : public StoreTest
{
protected:
    RecordedByChance()
    {
        Run("PRAGMA synchronous = OFF");
        Run("CREATE TABLE Marks (B INTEGER, A TEXT, Size REAL, Any, PRIMARY KEY (B, A)) WITHOUT ROWID");
        Run("CREATE TABLE Words (Word TEXT PRIMARY KEY NOT NULL, Layer INTEGER REFERENCES Layers (LayerID)"
            " ON DELETE CASCADE, Size DOUBLE, Any BLOB)");
        AddLayers(*m_database, Keys / 2);
    }

    void Live(unsigned seed, int acts)
    {
        m_dice = Dice(seed);
        while (acts > 0 && !HasFailure()) {
            const int some = 1 + m_dice.Below(MostActsInARow);
            ExpectRecorded(some);
            acts -= some;
        }
    }

private:
    // Records these acts, compares, and now and then takes them back.
    void ExpectRecorded(int acts)
    {
        const PaperRows before = m_paper.Read(AllTables);
        const Changeset changes = Recorded(acts);
        const PaperRows after = m_paper.Read(AllTables);
        EXPECT_TRUE(ChangesOnPaper::After(before, changes) == after);
        if (!m_dice.Chance(30))
            return;
        const std::optional<Changeset> undone = m_database->Apply(changes.Inverted());
        ASSERT_TRUE(undone.has_value());
        EXPECT_TRUE(m_paper.Read(AllTables) == before);
        EXPECT_TRUE(ChangesOnPaper::After(after, *undone) == before);
    }

    Changeset Recorded(int acts)
    {
        const auto recorder = m_database->RecordChanges();
        for (int act = 0; act < acts; ++act)
            Act();
        while (m_level > 0)
            EndLevel();
        return recorder->Changes();
    }

    void Act()
    {
        const int choice = m_dice.Below(100);
        if (choice < 12)
            BeginLevel();
        else if (choice < 22)
            EndLevel();
        else if (choice < 50)
            EditByCursor();
        else
            RunAny();
    }

    void BeginLevel()
    {
        if (m_level == DeepestLevel)
            return;
        m_database->BeginTrans();
        ++m_level;
    }

    void EndLevel()
    {
        if (m_level == 0)
            return;
        m_dice.Chance(70) ? m_database->CommitTrans() : m_database->Rollback();
        --m_level;
    }

    void EditByCursor()
    {
        static constexpr std::array<std::string_view, 8> columns{
            "Name", "Code", "Visible", "Color", "MinVisScale", "MaxVisScale", "Priority", "FillStyle"};
        const auto layer = SeekLayer(*m_database, AnyKey());
        if (layer->NoMatch())
            return;
        layer->Edit();
        for (int column = m_dice.Below(4); column >= 0; --column)
            layer->SetField(m_dice.OneOf(columns), AnyValue());
        layer->Update();
        if (m_dice.Chance(10)) { // the cursor stays on its row, whatever its key
            layer->Edit();
            layer->SetField("LayerID", AnyKey());
            ErrorOf([&] { layer->Update(); }); // another layer may have that one
        }
    }

    // Some of these fail, in part after they changed rows.
    void RunAny()
    {
        static constexpr std::array statements{
            "UPDATE Layers SET Code = Code + 1, Name = Name || ?2 WHERE LayerID % 3 = ?1 % 3",
            "UPDATE Layers SET MinVisScale = ?2, MaxVisScale = MaxVisScale WHERE LayerID >= ?1",
            "UPDATE Layers SET LayerID = LayerID + 1 WHERE LayerID >= ?1 AND ?2 IS NOT 0",
            "UPDATE OR REPLACE Layers SET LayerID = ?1 WHERE LayerID = ?1 + 2 AND ?2 IS NOT 0",
            "INSERT INTO Layers (LayerID, Name) VALUES (?1, ?2)",
            "INSERT OR REPLACE INTO Layers (LayerID, Name, MinVisScale) VALUES (?1, 'Layer', ?2)",
            "DELETE FROM Layers WHERE LayerID = ?1 AND ?2 IS NOT 0",
            "INSERT OR IGNORE INTO LayerGroups (ID, Name) VALUES (?1, ?2)",
            "UPDATE LayerGroups SET GroupOrdering = ?2 WHERE ID <= ?1",
            "DELETE FROM LayerGroups WHERE ID = ?1 AND ?2 IS NOT 0",
            "INSERT INTO LayerGroupMembers SELECT ?1, LayerID, ?2 FROM Layers LIMIT 5",
            "UPDATE LayerGroupMembers SET Ordering = ?2 WHERE LayerID = ?1",
            "INSERT OR REPLACE INTO Marks VALUES (?1 % 5, ?1 / 5, ?2, ?2)",
            "INSERT OR REPLACE INTO Marks VALUES (?1 % 5, 'a', 1, CAST(?2 AS BLOB))",
            "UPDATE Marks SET A = A || 'x', Size = Size + 1 WHERE B = ?1 % 5 AND ?2 IS NOT 0",
            "UPDATE Marks SET Any = zeroblob(?1), Size = ?2 WHERE B = ?1 % 5",
            "DELETE FROM Marks WHERE B > ?1 AND ?2 IS NOT 0",
            "INSERT OR REPLACE INTO Words SELECT 'word ' || ?1, MAX(LayerID), ?2, ?2 FROM Layers",
            "UPDATE Words SET Size = ?2, Any = Word WHERE Word <> 'word ' || ?1",
            "UPDATE Words SET Word = 'Word ' || ?1 WHERE Word = 'word ' || ?1 AND ?2 IS NOT 0"};
        const QString sql = QString::fromLatin1(m_dice.OneOf(statements));
        ErrorOf([&] { m_database->Execute(sql, {AnyKey(), AnyValue()}); });
    }

    void Run(const char* sql) { m_database->Execute(QString::fromLatin1(sql)); }

    qint32 AnyKey() { return 1 + m_dice.Below(Keys); }

    Value AnyValue()
    {
        switch (m_dice.Below(6)) {
        case 0:
            return Value::Null();
        case 1:
            return m_dice.Below(3) * 0.25;
        case 2:
            return QStringLiteral("7");
        case 3:
            return QStringLiteral("gr\u00FCn");
        case 4:
            return QString();
        default:
            return m_dice.Below(3) - 1;
        }
    }

    const QString m_path = PathOf(QStringLiteral("map.ovl"));
    const std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::Create(m_path);
    const ChangesOnPaper m_paper{m_path};
    Dice m_dice{1};
    int m_level = 0;
};

} // namespace

TEST_F(RecordedByChance, EachChangeOfARowIsRecordedAsTheRowsShowIt)
{
    Live(7, 10000);
}

} // namespace Orvane::Testing
