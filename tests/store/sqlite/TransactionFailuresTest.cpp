// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/failing_files/FailingStatements.h"
#include "store/sqlite/StoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <gmock/gmock.h>
#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

using testing::AnyOf;

const auto Failure = int(ErrorNumber::DatabaseFailure);
constexpr int MostMemory = 10'000'000; // bytes, more than anything here needs

/// SQLite gets only this many bytes more than it has, while the object lives.
class MemoryLimit
{
public:
    explicit MemoryLimit(sqlite3_int64 more) { sqlite3_hard_heap_limit64(sqlite3_memory_used() + more); }
    ~MemoryLimit()
    {
        sqlite3_hard_heap_limit64(0);
        sqlite3_soft_heap_limit64(0);
    }
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
};

class FailingTransactions : public StoreTest
{
protected:
    FailingTransactions() { AddLayer(*m_database, 1, QStringLiteral("As it was")); }

    void Rename(const char* name)
    {
        const auto layer = SeekLayer(*m_database, 1);
        layer->Edit();
        layer->SetField("Name", QString::fromLatin1(name));
        layer->Update();
    }

    /// The layer's name in the file, as another program reads it.
    std::string Stored()
    {
        return RawDatabase(m_database->Path()).Text("SELECT Name FROM Layers WHERE LayerID = 1");
    }

    void FailRollback()
    {
        m_database->BeginTrans();
        Rename("Undone");
        m_statements.Refuse("ROLLBACK");
        EXPECT_EQ(ErrorOf([&] { m_database->Rollback(); }), Failure);
    }

    /// The open level is the outermost one.
    void ExpectNothingMoreIsStored()
    {
        EXPECT_EQ(ErrorOf([&] { Rename("Stray"); }), Failure);
        EXPECT_EQ(ErrorOf([&] { m_database->Execute(QStringLiteral("BEGIN")); }), Failure);
        EXPECT_EQ(ErrorOf([&] { m_database->BeginTrans(); }), Failure);
        EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure);
        m_database->Rollback();
        EXPECT_EQ(Stored(), "As it was");
        Rename("Later");
        EXPECT_EQ(Stored(), "Later");
    }

    FailingStatements m_statements; // before the database, so that it is asked about each statement
    const std::unique_ptr<SqliteLayerDatabase> m_database
        = SqliteLayerDatabase::Create(PathOf(QStringLiteral("map.ovl")));
};

} // namespace

TEST_F(FailingTransactions, AfterAFailedRollbackTheNextEditIsStored)
{
    FailRollback();
    m_statements.Heal();
    Rename("Later");
    EXPECT_EQ(Stored(), "Later");
}

TEST_F(FailingTransactions, AfterAFailedRollbackWhatFailedIsNotReadAgain)
{
    FailRollback();
    m_statements.Heal();
    EXPECT_EQ(NameOfLayer(*m_database, 1), QStringLiteral("As it was"));
}

TEST_F(FailingTransactions, AfterAFailedRollbackATransactionStoresOnlyItsOwnEdits)
{
    AddLayer(*m_database, 2, QStringLiteral("Other"));
    FailRollback();
    m_statements.Heal();
    Transaction transaction(*m_database);
    m_database->Execute(QStringLiteral("UPDATE Layers SET Name = 'Mine' WHERE LayerID = 2"));
    transaction.Commit();
    RawDatabase other(m_database->Path());
    EXPECT_EQ(other.Text("SELECT group_concat(Name) FROM Layers"), "As it was,Mine");
}

TEST_F(FailingTransactions, WhileNothingCanBeUndoneEverythingIsRefused)
{
    const auto layer = SeekLayer(*m_database, 1);
    FailRollback();
    const QString update = QStringLiteral("UPDATE Layers SET Name = 'Stray'");
    EXPECT_EQ(ErrorOf([&] { layer->Edit(); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->Execute(update); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->BeginTrans(); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->Rollback(); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->OpenRecordset(QStringLiteral("Layers")); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->OpenQuery(QStringLiteral("SELECT 1")); }), Failure);
    EXPECT_EQ(Stored(), "As it was");
}

TEST_F(FailingTransactions, TheRefusalNamesTheMapAndTheReason)
{
    FailRollback();
    const QString text = DescriptionOf([&] { m_database->BeginTrans(); });
    EXPECT_TRUE(text.contains(QStringLiteral("map.ovl"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("not authorized"))) << qPrintable(text);
}

TEST_F(FailingTransactions, AFailedBeginLeavesNothingOpen)
{
    m_statements.Refuse("BEGIN");
    EXPECT_EQ(ErrorOf([&] { m_database->BeginTrans(); }), Failure);
    m_statements.Heal();
    Rename("Later");
    EXPECT_EQ(Stored(), "Later");
    EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure);
}

TEST_F(FailingTransactions, AFailedCommitStoresNothing)
{
    m_database->BeginTrans();
    Rename("Changed");
    m_statements.Refuse("COMMIT");
    EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure);
    m_statements.Heal();
    m_database->Rollback();
    EXPECT_EQ(Stored(), "As it was");
    Rename("Later");
    EXPECT_EQ(Stored(), "Later");
}

TEST_F(FailingTransactions, AfterAnInnerLevelCouldNotBeginNothingMoreIsStored)
{
    m_database->BeginTrans();
    Rename("Outer");
    m_statements.Refuse("SAVEPOINT");
    EXPECT_EQ(ErrorOf([&] { m_database->BeginTrans(); }), Failure);
    m_statements.Heal();
    ExpectNothingMoreIsStored();
}

TEST_F(FailingTransactions, AfterAnInnerCommitFailedNothingMoreIsStored)
{
    m_database->BeginTrans();
    Rename("Outer");
    m_database->BeginTrans();
    Rename("Inner");
    m_statements.Refuse("RELEASE");
    EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure);
    m_statements.Heal();
    m_database->Rollback();
    ExpectNothingMoreIsStored();
}

TEST_F(FailingTransactions, AfterAnInnerRollbackFailedNothingMoreIsStored)
{
    m_database->BeginTrans();
    Rename("Outer");
    m_database->BeginTrans();
    Rename("Inner");
    m_statements.Refuse("ROLLBACK TO");
    EXPECT_EQ(ErrorOf([&] { m_database->Rollback(); }), Failure);
    m_statements.Heal();
    ExpectNothingMoreIsStored();
}

TEST_F(FailingTransactions, AGuardWhoseRollbackFailsTakesTheOuterOneWithIt)
{
    const auto act = [&] {
        Transaction outer(*m_database);
        Rename("Outer");
        {
            Transaction inner(*m_database);
            Rename("Inner");
            m_statements.Refuse("ROLLBACK TO");
        }
        m_statements.Heal();
        outer.Commit();
    };
    EXPECT_EQ(ErrorOf(act), Failure);
    EXPECT_EQ(Stored(), "As it was");
}

TEST_F(FailingTransactions, AfterTheDatabaseGaveUpATransactionNothingIsWrittenOutsideIt)
{
    m_database->BeginTrans();
    Rename("Changed");
    m_database->Execute(QStringLiteral("ROLLBACK")); // as SQLite does by itself when the disk is full
    EXPECT_EQ(ErrorOf([&] { Rename("Stray"); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->BeginTrans(); }), Failure);
    EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure);
    m_database->Rollback();
    EXPECT_EQ(Stored(), "As it was");
    Rename("Later");
    EXPECT_EQ(Stored(), "Later");
}

TEST_F(FailingTransactions, ATransactionThatEndedByItselfIsLostOnAllLevels)
{
    m_database->BeginTrans();
    Rename("Outer");
    m_database->BeginTrans();
    m_database->BeginTrans();
    m_database->Execute(QStringLiteral("ROLLBACK")); // as SQLite does by itself when the disk is full
    EXPECT_EQ(ErrorOf([&] { Rename("Stray"); }), Failure);
    m_database->Rollback();
    EXPECT_EQ(ErrorOf([&] { Rename("Stray"); }), Failure);
    m_database->Rollback();
    ExpectNothingMoreIsStored();
}

TEST_F(FailingTransactions, ARestartThatFailsHalfwayStoresNothing)
{
    m_database->BeginTrans();
    m_database->BeginTrans();
    EXPECT_EQ(NameOfLayer(*m_database, 1), QStringLiteral("As it was"));
    RawDatabase(m_database->Path()).Run("UPDATE Layers SET Code = 7");
    m_statements.Refuse("SAVEPOINT");
    EXPECT_EQ(ErrorOf([&] { Rename("Inner"); }), Failure);
    m_statements.Heal();
    m_database->Rollback();
    ExpectNothingMoreIsStored();
}

TEST_F(FailingTransactions, AfterMemoryRanOutTheNextEditIsStored)
{
    const auto rename = [&] {
        Transaction transaction(*m_database);
        Rename("Meanwhile");
        transaction.Commit();
    };
    int failures = 0;
    for (int more = 0;; more += 256) {
        ASSERT_LT(more, MostMemory) << "it never succeeds";
        const std::string before = Stored();
        int error = 0;
        {
            const MemoryLimit limit(more);
            error = ErrorOf(rename);
        }
        if (error == 0)
            break;
        ++failures;
        ASSERT_THAT(Stored(), AnyOf(before, std::string("Meanwhile"))) << more;
        Rename("Later");
        ASSERT_EQ(Stored(), "Later") << more;
    }
    EXPECT_EQ(Stored(), "Meanwhile");
    EXPECT_GT(failures, 0);
}

TEST_F(FailingTransactions, WithoutMemoryATextIsReadWholeOrNotAtAll)
{
    const QString text(10'000, u'x');
    m_database->Execute(QStringLiteral("UPDATE Layers SET Name = ?1"), {text});
    int error = Failure;
    for (int more = 0; error != 0; more += 256) {
        ASSERT_LT(more, MostMemory) << "it never succeeds";
        QString read;
        {
            const MemoryLimit limit(more);
            error = ErrorOf([&] { read = NameOfLayer(*m_database, 1); });
        }
        ASSERT_TRUE(error != 0 || read == text) << more << ": " << read.size();
    }
}

TEST_F(FailingTransactions, WithoutMemoryAChangeIsRecordedWholeOrReportedAsMissing)
{
    int error = Failure;
    for (int more = 0; error != 0; more += 256) {
        ASSERT_LT(more, MostMemory) << "it never succeeds";
        const QString before = NameOfLayer(*m_database, 1);
        const auto recorder = m_database->RecordChanges();
        {
            const MemoryLimit limit(more);
            error = ErrorOf([&] {
                m_database->Execute(
                    QStringLiteral("UPDATE Layers SET Name = ?1"),
                    {QString(5000, u'x') + QString::number(more)});
            });
        }
        Changeset changes;
        if (error == 0)
            error = ErrorOf([&] { changes = recorder->Changes(); });
        if (error != 0)
            continue;
        ASSERT_FALSE(changes.IsEmpty()) << more;
        ASSERT_TRUE(m_database->Apply(changes.Inverted())) << more;
        ASSERT_EQ(NameOfLayer(*m_database, 1), before) << more;
    }
}

} // namespace Orvane::Testing
