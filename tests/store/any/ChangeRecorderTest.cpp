// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"

#include "store/StoreTable.h"
#include "store/any/AnyStoreTest.h"
#include "store/any/RecordedRows.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Recorder : public AnyStoreTest
{
protected:
    Recorder() { AddLayers(*m_database, 3); }

    void Run(const char* sql) { m_database->Execute(QString::fromUtf8(sql)); }

    const std::unique_ptr<ILayerStore> m_database = NewStore();
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
    Run("UPDATE Layers SET Name = 'a', Visible = TRUE, Selectable = FALSE WHERE LayerID = 1");
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
    m_database->PrepareTable(
        {QStringLiteral("Sources"),
         {{QStringLiteral("LayerID"),
           StoreType::Whole,
           StoreColumn::Nulls::Refused,
           {},
           QStringLiteral("Layers"),
           QStringLiteral("LayerID")}},
         {QStringLiteral("LayerID")}});
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
    Run("UPDATE Layers SET Color = 255, Visible = FALSE");
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

TEST_F(Recorder, SeesTablesThatAreMadeAndWidenedMeanwhile)
{
    const auto recorder = m_database->RecordChanges();
    StoreTable notes
        = {QStringLiteral("Notes"),
           {{QStringLiteral("Layer"), StoreType::Whole, StoreColumn::Nulls::Refused},
            {QStringLiteral("Page"), StoreType::Whole, StoreColumn::Nulls::Refused}},
           {QStringLiteral("Page"), QStringLiteral("Layer")}};
    m_database->PrepareTable(notes);
    Run("INSERT INTO Notes VALUES (1, 2)");
    notes.columns.push_back({QStringLiteral("Text"), StoreType::Text});
    m_database->PrepareTable(notes);
    Run("INSERT INTO Notes VALUES (3, 4, 'x')");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Notes inserted 2", "Notes inserted 4"));
}

} // namespace Orvane::Testing
