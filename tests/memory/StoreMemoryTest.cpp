// SPDX-License-Identifier: MIT
#include "memory/StoreWithoutMemory.h"
#include "store/ChangeRecorder.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

namespace {

StoreTable ExampleTable()
{
    return {
        QStringLiteral("Example"),
        {{QStringLiteral("Id"), StoreType::Whole, StoreColumn::Nulls::Refused},
         {QStringLiteral("Text"), StoreType::Text}},
        {QStringLiteral("Id")},
        {},
        {QStringLiteral("Text")}};
}

} // namespace

TEST_P(StoreWithoutMemory, AnEditIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act { return [&] { SetCode(database, 1, 5); }; });
}

TEST_P(StoreWithoutMemory, ATransactionIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act { return [&] { ChangeInTransactions(database); }; });
}

TEST_P(StoreWithoutMemory, ATransactionThatIsRolledBackLeavesNothing)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        return [&] {
            const Transaction transaction(database);
            SetCode(database, 1, 5);
            const Transaction inner(database);
            AddLayer(database, 9, QStringLiteral("New"));
        };
    });
}

TEST_P(StoreWithoutMemory, AStatementRunsWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        return [&] {
            database.Execute(
                QStringLiteral("UPDATE Layers SET Name = ?1, Code = ?2"), {QString(300, u'x'), 1.5});
        };
    });
}

TEST_P(StoreWithoutMemory, AQueryReturnsAllRowsOrAnError)
{
    Sweep([this](SqliteLayerDatabase& database) -> Act {
        return [&] {
            std::string read;
            const auto rows = database.OpenQuery(
                QStringLiteral("SELECT LayerID, Name FROM Layers WHERE LayerID > ?1 ORDER BY Name || 'x'"),
                {0});
            for (; !rows->AtEOF(); rows->MoveNext())
                read += ToText(rows->Field("LayerID")).toStdString()
                    + ToText(rows->Field("Name")).toStdString();
            m_read = read;
        };
    });
}

TEST_P(StoreWithoutMemory, AWalkThroughTheTableSeesAllRowsOrAnError)
{
    Sweep([this](SqliteLayerDatabase& database) -> Act {
        return [&] {
            std::string read;
            for (const auto layers = SeekLayer(database, 1); !layers->AtEOF(); layers->MoveNext())
                read += ToText(layers->Field("Name")).toStdString();
            m_read = read;
        };
    });
}

TEST_P(StoreWithoutMemory, ATableIsPreparedWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        return [&, table = ExampleTable()] { database.PrepareTable(table); };
    });
}

TEST_P(StoreWithoutMemory, AColumnIsAddedWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        StoreTable table = ExampleTable();
        database.PrepareTable(table);
        table.columns.push_back({QStringLiteral("More"), StoreType::Real});
        return [&, table] { database.PrepareTable(table); };
    });
}

// The changes count as read only if they can be undone.
TEST_P(StoreWithoutMemory, ChangesAreRecordedWholeOrReportedAsMissing)
{
    Sweep([this](SqliteLayerDatabase& database) -> Act {
        return [&] {
            const auto recorder = database.RecordChanges();
            Transaction transaction(database);
            SetCode(database, 1, 5);
            database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
            AddLayer(database, 9, QStringLiteral("New"));
            const Changeset changes = recorder->Changes();
            transaction.Commit();
            m_read = changes.IsEmpty() ? "nothing" : "changes";
        };
    });
}

// What one recording misses must not spoil the next one, which shares its log while a transaction is open.
TEST_P(StoreWithoutMemory, AfterAGapTheNextRecordingInTheSameTransactionIsWhole)
{
    m_afterwards = [this] {
        const auto recorder = m_database->RecordChanges();
        if (ErrorOf([&] { AddGroup(*m_database, 6, QStringLiteral("Later"), 0); }) != 0)
            return m_database->Rollback(); // the transaction is lost
        m_database->Execute(QStringLiteral("DELETE FROM LayerGroups WHERE ID = 5"));
        const Changeset undo = recorder->Changes().Inverted();
        EXPECT_TRUE(m_database->Apply(undo)) << "not a conflict";
        m_database->CommitTrans();
    };
    Sweep([](SqliteLayerDatabase& database) -> Act {
        database.BeginTrans();
        database.Execute(QStringLiteral("UPDATE Layers SET Priority = 76 WHERE LayerID = 3"));
        return [&] {
            const auto recorder = database.RecordChanges();
            database.Execute(QStringLiteral("UPDATE Layers SET Code = 5 WHERE LayerID = 1"));
        };
    });
}

// The write must wait for another program, so that the cursor has to keep its rows.
TEST_P(StoreWithoutMemory, AnOpenCursorSkipsNoRowBecauseItHadToKeepThem)
{
    std::unique_ptr<IRecordset> rows;
    m_afterwards = [&] {
        std::string read;
        try {
            for (; !rows->AtEOF(); rows->MoveNext())
                read += ToText(rows->Field("LayerID")).toStdString();
            EXPECT_EQ(read, "123");
        } catch (const RunTimeError&) { // told that rows are missing
        } catch (const std::bad_alloc&) {
        }
        rows.reset();
    };
    Sweep([&](SqliteLayerDatabase& database) -> Act {
        rows = database.OpenQuery(QStringLiteral("SELECT LayerID, Name FROM Layers ORDER BY Name"));
        RawDatabase(m_run).Run("UPDATE Layers SET Priority = 76 WHERE LayerID = 3");
        return [&] { SetCode(database, 1, 5); };
    });
}

TEST_P(StoreWithoutMemory, AnUndoIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        const auto recorder = database.RecordChanges();
        SetCode(database, 1, 5);
        database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
        AddLayer(database, 9, QStringLiteral("New"));
        const Changeset undo = recorder->Changes().Inverted();
        return [&database, undo] { EXPECT_TRUE(database.Apply(undo)) << "not a conflict"; };
    });
}

// The last row is deleted and comes back while a cursor stands on another one.
TEST_P(StoreWithoutMemory, UndoingADeletionBelowAnOpenCursorIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        const auto recorder = database.RecordChanges();
        database.Execute(QStringLiteral("DELETE FROM LayerGroups"));
        database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID < 3"));
        const Changeset undo = recorder->Changes().Inverted();
        return [&database, undo] {
            const auto rows = database.OpenRecordset(QStringLiteral("SELECT LayerID FROM Layers"));
            EXPECT_TRUE(database.Apply(undo)) << "not a conflict";
        };
    });
}

INSTANTIATE_TEST_SUITE_P(WhateverFails, StoreWithoutMemory, AllKindsOfMissingMemory(), NameOfKind);

} // namespace Orvane::Testing
