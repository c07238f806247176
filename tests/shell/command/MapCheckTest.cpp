// SPDX-License-Identifier: MIT
#include "mapkit/document/MapThemes.h"
#include "shell/command/MapCheckFixture.h"
#include "store/sqlite/files/PlainTables.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

using namespace Testing;

namespace {

using Kind = MapProblem::Kind;
using MapCheckTest = MapCheckFixture;

} // namespace

TEST_F(MapCheckTest, ASoundMapHasNoProblems)
{
    EXPECT_TRUE(CheckMap(m_map).empty());
}

TEST_F(MapCheckTest, RepairingASoundMapLeavesEachByte)
{
    const QByteArray before = Bytes();
    EXPECT_TRUE(RepairMap(m_map).empty());
    EXPECT_EQ(Bytes(), before);
}

TEST_F(MapCheckTest, RowsOfALayerThatIsGoneAreFoundInEveryTable)
{
    RawDatabase(m_map).Run("DELETE FROM Layers WHERE LayerID = 2");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    EXPECT_THAT(Kinds(problems), testing::Each(Kind::DanglingRows));
    ASSERT_EQ(problems.size(), 3u);
    for (const char* table : {"LayerGroupMembers", "LayerSources", "LayerSchemeValues"}) {
        EXPECT_TRUE(std::any_of(problems.begin(), problems.end(), [&](const MapProblem& problem) {
            return problem.repairable && problem.text.contains(table);
        })) << table;
    }
}

TEST_F(MapCheckTest, MembersOfAGroupThatIsGoneAreFound)
{
    RawDatabase(m_map).Run("DELETE FROM LayerGroups");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_TRUE(problems[0].text.contains("LayerGroups"));
}

TEST_F(MapCheckTest, ValuesOfASchemeThatIsGoneAreFound)
{
    RawDatabase(m_map).Run("DELETE FROM LayerSchemes");
    ASSERT_THAT(Kinds(CheckMap(m_map)), testing::ElementsAre(Kind::DanglingRows));
    EXPECT_TRUE(RepairMap(m_map).empty());
    EXPECT_EQ(Count("LayerSchemeValues"), 0);
}

TEST_F(MapCheckTest, RepairRemovesDanglingRowsAndNoOthers)
{
    RawDatabase(m_map).Run("DELETE FROM Layers WHERE LayerID = 2");
    EXPECT_TRUE(RepairMap(m_map).empty());
    EXPECT_EQ(Count("LayerGroupMembers"), 1);
    EXPECT_EQ(Count("LayerSources"), 1);
    EXPECT_EQ(Count("LayerSchemeValues WHERE LayerID = 1"), Count("LayerSchemes"));
    EXPECT_EQ(Count("Layers"), 1);
}

TEST_F(MapCheckTest, RepairRemovesRowsThatDangleOnceOthersAreGone)
{
    RawDatabase other(m_map);
    other.Run("CREATE TABLE Notes (ID INTEGER PRIMARY KEY, LayerID INTEGER REFERENCES LayerSources)");
    other.Run("INSERT INTO Notes VALUES (1, 1), (2, 2), (3, NULL)");
    other.Run("DELETE FROM Layers WHERE LayerID = 2");
    EXPECT_TRUE(RepairMap(m_map).empty());
    EXPECT_EQ(Count("Notes"), 2);
}

TEST_F(MapCheckTest, CheckingAloneChangesNothing)
{
    RawDatabase(m_map).Run("DELETE FROM LayerGroups");
    const QByteArray before = Bytes();
    CheckMap(m_map);
    EXPECT_EQ(Bytes(), before);
}

TEST_F(MapCheckTest, AnIndexThatDoesNotMatchItsTableIsMended)
{
    {
        RawDatabase other(m_map);
        other.Run("PRAGMA writable_schema = ON");
        other.Run("UPDATE sqlite_schema SET sql = 'CREATE INDEX LayerNameIDX ON Layers (Priority)'"
                  " WHERE name = 'LayerNameIDX'");
    }
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_FALSE(problems.empty());
    EXPECT_EQ(problems[0].kind, Kind::Damage);
    EXPECT_TRUE(problems[0].repairable);
    EXPECT_TRUE(RepairMap(m_map).empty());
}

TEST_F(MapCheckTest, ABadValueIsNamedWithItsLayerAndColumn)
{
    RawDatabase(m_map).Run("UPDATE Layers SET Code = 'red' WHERE LayerID = 2");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::BadValue));
    EXPECT_TRUE(problems[0].repairable);
    for (const char* word : {"Layers", "\"b\"", "Code", "red"})
        EXPECT_TRUE(problems[0].text.contains(word)) << problems[0].text.toStdString();
}

TEST_F(MapCheckTest, BadValuesOfSchemesAreFoundToo)
{
    RawDatabase(m_map).Run(
        "UPDATE LayerSchemeValues SET Priority = x'00' WHERE LayerID = 1 AND SchemeID = 1");
    RawDatabase(m_map).Run("UPDATE LayerSchemes SET IsCurrent = 'no' WHERE SchemeID = 1");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    EXPECT_THAT(Kinds(problems), testing::ElementsAre(Kind::BadValue, Kind::BadValue));
    EXPECT_TRUE(problems[1].text.contains("\"a\""));
    EXPECT_TRUE(RepairMap(m_map).empty());
}

TEST_F(MapCheckTest, BadValuesInTheHeadOfASchemeAreFoundAndReplaced)
{
    RawDatabase(m_map).Run(
        "UPDATE LayerSchemes SET Holds = 'all', Place = 99999999999, AtOpening = x'00' WHERE SchemeID = 1");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::BadValue, Kind::BadValue, Kind::BadValue));
    for (const char* column : {"Holds", "Place", "AtOpening"}) {
        EXPECT_TRUE(std::any_of(problems.begin(), problems.end(), [&](const MapProblem& problem) {
            return problem.repairable && problem.text.contains(column);
        })) << column;
    }
    EXPECT_TRUE(RepairMap(m_map).empty());
    EXPECT_EQ(Count("LayerSchemes WHERE Holds = 7 AND Place = 0 AND NOT AtOpening"), 1);
}

TEST_F(MapCheckTest, ASchemeOfUnknownClassesIsNamedAndStays)
{
    RawDatabase(m_map).Run("UPDATE LayerSchemes SET Holds = 9 WHERE SchemeID = 1");
    const std::vector<MapProblem> problems = RepairMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::BadValue));
    EXPECT_TRUE(problems[0].text.contains("Holds"));
    EXPECT_EQ(Count("LayerSchemes WHERE Holds = 9"), 1);
}

TEST_F(MapCheckTest, RepairReplacesBadValuesAndSaysSo)
{
    RawDatabase(m_map).Run("UPDATE Layers SET Visible = 'red', Priority = 99999999999 WHERE LayerID = 2");
    QStringList replaced;
    EXPECT_TRUE(RepairMap(m_map, &replaced).empty());
    ASSERT_EQ(replaced.size(), 2);
    EXPECT_TRUE(replaced[0].contains("Visible") && replaced[0].contains("red"));
    EXPECT_TRUE(replaced[1].contains("99999999999"));
    EXPECT_EQ(Count("Layers WHERE Visible = 1"), 2);
}

TEST_F(MapCheckTest, AnIDBeyond32BitsIsNamedAndStays)
{
    RawDatabase(m_map).Run("INSERT INTO Layers (LayerID, Name) VALUES (2147483648, 'far')");
    const std::vector<MapProblem> problems = RepairMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::BadValue));
    EXPECT_TRUE(problems[0].text.contains("2147483648"));
    EXPECT_FALSE(problems[0].repairable);
    EXPECT_EQ(Count("Layers"), 3);
}

TEST_F(MapCheckTest, ACheckThatTakesTooLongSaysSoAndTheDataAreStillChecked)
{
    AddManyLayers();
    QFile::remove(m_folder.Path("a.geojson"));
    EXPECT_THAT(
        Kinds(CheckMap(m_map, std::chrono::milliseconds(0))),
        testing::ElementsAre(Kind::Unfinished, Kind::MissingData));
    EXPECT_THAT(Kinds(CheckMap(m_map, std::nullopt)), testing::ElementsAre(Kind::MissingData));
}

TEST_F(MapCheckTest, ARepairThatTakesTooLongChangesNothing)
{
    AddManyLayers();
    RawDatabase(m_map).Run("UPDATE Layers SET Code = 'red' WHERE LayerID = 1");
    const int bad = Count("Layers WHERE Code = 'red'");
    QStringList replaced;
    const auto problems = RepairMap(m_map, &replaced, std::chrono::milliseconds(0));
    EXPECT_THAT(Kinds(problems), testing::Contains(Kind::Unfinished));
    EXPECT_TRUE(replaced.isEmpty());
    EXPECT_EQ(Count("Layers WHERE Code = 'red'"), bad);
}

TEST_F(MapCheckTest, ManyBadValuesAreCounted)
{
    RawDatabase(m_map).Run("WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100)"
                           " INSERT INTO Layers (Name, Code) SELECT 'many', 'x' FROM n");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    EXPECT_LT(problems.size(), 40u);
    EXPECT_THAT(Kinds(problems), testing::Each(Kind::BadValue));
    EXPECT_TRUE(problems.back().text.contains("more"));
    EXPECT_TRUE(RepairMap(m_map).empty());
}

TEST_F(MapCheckTest, AMapWhoseTablesRunCodeIsAnError)
{
    RawDatabase(m_map).Run("DROP TABLE LayerSources; CREATE VIEW LayerSources AS WITH RECURSIVE n (i) AS"
                           " (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS LayerID FROM n");
    EXPECT_THROW(CheckMap(m_map), RunTimeError);
    EXPECT_THROW(RepairMap(m_map), RunTimeError);
}

TEST_F(MapCheckTest, EveryTableOfAMapIsKnownToTheCheckBeforeOpening)
{
    const auto document = MapDocument::Open(m_map);
    MapThemes(document->Database()).StoreVisibleLayers("Theme");
    const auto tables = document->Database().OpenQuery(
        "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
    for (; !tables->AtEOF(); tables->MoveNext()) {
        const std::string name = ToText(tables->Field("name")).toStdString();
        EXPECT_TRUE(std::count(PlainTableNames.begin(), PlainTableNames.end(), name)) << name;
    }
}

TEST_F(MapCheckTest, AMapOfALayerDatabaseAloneIsSound)
{
    const QString path = m_folder.Path("plain.orvane");
    SqliteLayerDatabase::Create(path);
    EXPECT_TRUE(CheckMap(path).empty());
}

TEST_F(MapCheckTest, AMapThatIsOpenElsewhereCanBeChecked)
{
    const auto open = MapDocument::Open(m_map);
    open->AddGroup("More", false);
    EXPECT_TRUE(CheckMap(m_map).empty());
}

TEST_F(MapCheckTest, AFileThatIsMissingOrNoMapIsAnError)
{
    EXPECT_THROW(CheckMap(m_folder.Path("missing.orvane")), RunTimeError);
    EXPECT_THROW(RepairMap(m_folder.Write("text.orvane", "text")), RunTimeError);
}

TEST_F(MapCheckTest, AFileCutShortIsAnErrorAndStays)
{
    QFile file(m_map);
    ASSERT_TRUE(file.resize(file.size() / 2));
    const QByteArray before = Bytes();
    EXPECT_THROW(RepairMap(m_map), RunTimeError);
    EXPECT_EQ(Bytes(), before);
}

} // namespace Orvane
