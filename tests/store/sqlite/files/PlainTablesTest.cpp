// SPDX-License-Identifier: MIT
#include "store/sqlite/files/PlainTables.h"

#include "store/sqlite/StoreTest.h"
#include "store/sqlite/files/CopyLayerFile.h"
#include "support/ProcessorTime.h"

namespace Orvane::Testing {

namespace {

constexpr auto Endless
    = "AS WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS LayerID FROM n";

class PlainTables : public StoreTest
{
protected:
    const ProcessorTime m_time{std::chrono::seconds(20)};

    /// Runs the statements on a new map, and expects that every way to open it is refused, with that word.
    void ExpectRefused(const QByteArray& sql, const QString& word)
    {
        const QString path = MadeFile();
        RawDatabase(path).Run(sql.constData());
        const auto before = BytesOf(path);
        for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly}) {
            const auto open = [&] { SqliteLayerDatabase::Open(path, mode, Impatient()); };
            EXPECT_EQ(ErrorOf(open), int(ErrorNumber::NotALayerDatabase)) << sql.constData();
            const QString text = DescriptionOf(open);
            EXPECT_TRUE(text.contains(QLatin1Char('"') + word + QLatin1Char('"'))) << qPrintable(text);
        }
        EXPECT_NE(ErrorOf([&] { CopyLayerFile(path, PathOf(QStringLiteral("copy.ovl"))); }), 0);
        EXPECT_EQ(BytesOf(path), before);
        EXPECT_TRUE(QFile::remove(path));
    }
};

} // namespace

TEST_F(PlainTables, AnEndlessViewInPlaceOfATableIsNamed)
{
    for (const QByteArray table : {"Layers", "LayerGroups", "LayerGroupMembers"})
        ExpectRefused(
            "PRAGMA foreign_keys = OFF; DROP TABLE " + table + "; CREATE VIEW " + table + ' ' + Endless,
            QString::fromLatin1(table));
    ExpectRefused(QByteArray("CREATE VIEW LayerSources ") + Endless, QStringLiteral("LayerSources"));
    ExpectRefused(QByteArray("CREATE VIEW layersources ") + Endless, QStringLiteral("layersources"));
}

TEST_F(PlainTables, AVirtualTableIsNamed)
{
    ExpectRefused(
        "CREATE VIRTUAL TABLE MapSettings USING rtree (Name, Low, High)", QStringLiteral("MapSettings"));
}

TEST_F(PlainTables, ATriggerIsNamed)
{
    ExpectRefused(
        QByteArray(
            "CREATE TRIGGER Trap BEFORE INSERT ON Layers BEGIN SELECT max(i) FROM"
            " (WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n); END"),
        QStringLiteral("Trap"));
}

TEST_F(PlainTables, AComputedColumnIsNamed)
{
    ExpectRefused(
        "ALTER TABLE Layers ADD COLUMN Load AS (length(zeroblob(900000000)))", QStringLiteral("Layers.Load"));
    ExpectRefused(
        "CREATE TABLE HostTables (Name TEXT, Version DEFAULT (abs(1)))",
        QStringLiteral("HostTables.Version"));
}

TEST_F(PlainTables, AComputedIndexIsNamed)
{
    ExpectRefused("CREATE INDEX Trap ON Layers (abs(Code))", QStringLiteral("Trap"));
    ExpectRefused("CREATE INDEX Trap ON LayerGroups (Name) WHERE abs(ID) > 1", QStringLiteral("Trap"));
}

TEST_F(PlainTables, AConditionIsNamed)
{
    ExpectRefused(
        "CREATE TABLE Themes (ThemeID INTEGER PRIMARY KEY, Name TEXT Check/**/(length(Name) > 0))",
        QStringLiteral("Themes"));
}

TEST_F(PlainTables, AViewThatIsStillInTheJournalIsNamedToo)
{
    const QString path = MadeFile();
    RawDatabase stranger(path);
    stranger.Run("PRAGMA wal_autocheckpoint = 0");
    stranger.Run((QByteArray("CREATE VIEW LayerSources ") + Endless).constData());
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly}) {
        EXPECT_EQ(
            ErrorOf([&] { SqliteLayerDatabase::Open(path, mode, Impatient()); }),
            int(ErrorNumber::NotALayerDatabase));
    }
}

TEST_F(PlainTables, TablesAndColumnsOfAHostAreItsOwn)
{
    const QString path = MadeFile();
    RawDatabase(path).Run(
        "CREATE TABLE Notes (ID INTEGER PRIMARY KEY, Checked, Twice AS (ID * 2), CHECK (ID > 0));"
        "CREATE VIEW Seen AS SELECT ID FROM Notes;"
        "ALTER TABLE Layers ADD COLUMN CheckedBy TEXT DEFAULT 'nobody'");
    EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(path), 2), QStringLiteral("Layer 2"));
}

} // namespace Orvane::Testing
