// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/sqlite/StoreTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Kind = ChangeKind;

class Recorder : public StoreTest
{
protected:
    Recorder()
    {
        for (int id = 1; id <= 3; ++id)
            AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
    }

    void Run(const char* sql) { m_database->Execute(QString::fromUtf8(sql)); }

    // "table kind key", in the order of the changeset.
    static std::vector<std::string> RowsOf(const Changeset& changes)
    {
        std::vector<std::string> rows;
        changes.ForEachRow([&](const RowChange& row) {
            const char* kind = row.kind == Kind::Inserted ? " inserted "
                : row.kind == Kind::Deleted               ? " deleted "
                                                          : " updated ";
            rows.push_back(std::string(row.table) + kind + std::to_string(row.key));
        });
        return rows;
    }

    // Changed columns of the one updated row.
    static std::vector<std::string> ColumnsOf(const Changeset& changes)
    {
        std::vector<std::string> columns;
        changes.ForEachRow(
            [&](const RowChange& row) { columns.assign(row.columns.begin(), row.columns.end()); });
        return columns;
    }

    const std::unique_ptr<SqliteLayerDatabase> m_database
        = SqliteLayerDatabase::Create(PathOf(QStringLiteral("map.ovl")));
    const std::unique_ptr<ChangeRecorder> m_recorder = m_database->RecordChanges();
};

} // namespace

TEST_F(Recorder, SeesNothingBeforeAnythingChanges)
{
    const auto recorder = m_database->RecordChanges();
    Column(*m_database, QStringLiteral("SELECT LayerID FROM Layers"), "LayerID");
    EXPECT_TRUE(recorder->Changes().IsEmpty());
    EXPECT_THAT(RowsOf(recorder->Changes()), IsEmpty());
}

TEST_F(Recorder, SeesEachChangedRowOnce)
{
    const auto recorder = m_database->RecordChanges();
    Run("UPDATE Layers SET Name = 'a' WHERE LayerID = 1");
    Run("UPDATE Layers SET Name = 'b', Code = 7 WHERE LayerID = 1");
    Run("DELETE FROM Layers WHERE LayerID = 2");
    Run("INSERT INTO LayerGroups (ID, Name) VALUES (5, 'Group')");
    EXPECT_THAT(
        RowsOf(recorder->Changes()),
        testing::UnorderedElementsAre("Layers updated 1", "Layers deleted 2", "LayerGroups inserted 5"));
}

TEST_F(Recorder, NamesTheChangedColumnsOfARow)
{
    const auto recorder = m_database->RecordChanges();
    Run("UPDATE Layers SET Name = 'a', Visible = 1, Selectable = 0 WHERE LayerID = 1");
    EXPECT_THAT(
        ColumnsOf(recorder->Changes()), ElementsAre("Name", "Selectable")); // Visible already had that value
}

TEST_F(Recorder, ARowThatIsAsBeforeDidNotChange)
{
    const auto recorder = m_database->RecordChanges();
    Run("UPDATE Layers SET Name = 'a' WHERE LayerID = 1");
    Run("UPDATE Layers SET Name = 'Layer 1' WHERE LayerID = 1");
    EXPECT_TRUE(recorder->Changes().IsEmpty());
}

TEST_F(Recorder, WhatWasRolledBackDidNotChange)
{
    const auto recorder = m_database->RecordChanges();
    m_database->BeginTrans();
    Run("UPDATE Layers SET Name = 'a'");
    Run("INSERT INTO LayerGroups (ID) VALUES (5)");
    m_database->Rollback();
    EXPECT_TRUE(recorder->Changes().IsEmpty());
}

TEST_F(Recorder, SeesWhatCursorsChange)
{
    const auto recorder = m_database->RecordChanges();
    const auto layer = SeekLayer(*m_database, 3);
    layer->Edit();
    layer->SetField("Code", 12);
    layer->Update();
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 3"));
}

TEST_F(Recorder, SeesRowsThatGoWithOthersAndTablesOfTheHost)
{
    Run("CREATE TABLE Sources (LayerID INTEGER PRIMARY KEY REFERENCES Layers (LayerID) ON DELETE CASCADE)");
    Run("INSERT INTO Sources VALUES (1)");
    const auto recorder = m_database->RecordChanges();
    Run("DELETE FROM Layers WHERE LayerID = 1");
    EXPECT_THAT(
        RowsOf(recorder->Changes()), testing::UnorderedElementsAre("Layers deleted 1", "Sources deleted 1"));
}

TEST_F(Recorder, OneThatBeganEarlierSeesTheSame)
{
    const auto second = m_database->RecordChanges();
    Run("UPDATE Layers SET Name = 'a' WHERE LayerID = 1");
    EXPECT_FALSE(second->Changes().IsEmpty());
    EXPECT_EQ(RowsOf(m_recorder->Changes()).size(), 3u); // the layers were made while the recorder existed
}

TEST_F(Recorder, KeepsLargeChangesSmall)
{
    m_database->BeginTrans();
    for (int id = 10; id < 5010; ++id)
        AddLayer(*m_database, id, QStringLiteral("Layer"));
    m_database->CommitTrans();
    const auto recorder = m_database->RecordChanges();
    Run("UPDATE Layers SET Color = 255, Visible = 0");
    const Changeset changes = recorder->Changes();
    EXPECT_LT(changes.BytesInMemory() * 5, changes.Bytes().size());
    EXPECT_EQ(RowsOf(changes).size(), 5003u);
}

TEST_F(Recorder, AStatementThatFailedHalfwayChangedNothing)
{
    const auto recorder = m_database->RecordChanges();
    EXPECT_NE(ErrorOf([&] { Run("UPDATE Layers SET LayerID = 7 WHERE LayerID > 1"); }), 0);
    EXPECT_TRUE(recorder->Changes().IsEmpty());
}

TEST_F(Recorder, KeepsWhatWasChangedBeforeAnInnerRollback)
{
    const auto recorder = m_database->RecordChanges();
    m_database->BeginTrans();
    Run("UPDATE Layers SET Code = 8 WHERE LayerID = 1");
    m_database->BeginTrans();
    Run("UPDATE Layers SET Code = 9");
    m_database->Rollback();
    m_database->CommitTrans();
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 1"));
}

TEST_F(Recorder, StartedInATransactionSeesItsRestOnly)
{
    m_database->BeginTrans();
    Run("UPDATE Layers SET Code = 8 WHERE LayerID = 1");
    {
        const auto recorder = m_database->RecordChanges();
        Run("UPDATE Layers SET Code = 8 WHERE LayerID = 2");
        EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 2"));
    }
    const auto recorder = m_database->RecordChanges();
    m_database->Rollback();
    EXPECT_TRUE(recorder->Changes().IsEmpty());
}

TEST_F(Recorder, ARowUnderAnotherKeyIsAnotherRow)
{
    const auto recorder = m_database->RecordChanges();
    Run("UPDATE Layers SET LayerID = 30 WHERE LayerID = 3");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers deleted 3", "Layers inserted 30"));
}

TEST_F(Recorder, SeesARowThatReplacesAnother)
{
    const auto recorder = m_database->RecordChanges();
    Run("INSERT OR REPLACE INTO Layers (LayerID, Name) VALUES (3, 'Other')");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 3"));
    EXPECT_THAT(ColumnsOf(recorder->Changes()), ElementsAre("Name"));
}

TEST_F(Recorder, SeesTablesThatAreMadeAndWidenedMeanwhile)
{
    const auto recorder = m_database->RecordChanges();
    Run("CREATE TABLE Notes (A INTEGER, B INTEGER, Text TEXT, PRIMARY KEY (B, A)) WITHOUT ROWID");
    Run("INSERT INTO Notes VALUES (1, 2, 'x')");
    Run("ALTER TABLE Notes ADD COLUMN More");
    Run("INSERT INTO Notes VALUES (3, 4, 'y', 'z')");
    Run("CREATE TABLE Loose (A)");
    Run("INSERT INTO Loose VALUES (1)");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Notes inserted 2", "Notes inserted 4"));
}

} // namespace Orvane::Testing
