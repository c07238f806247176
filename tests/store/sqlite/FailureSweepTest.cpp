// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/failing_files/FailingFiles.h"
#include "store/sqlite/StoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <QFile>

#include <gmock/gmock.h>
#include <ostream>

namespace Orvane::Testing {

namespace {

using testing::AnyOf;

constexpr int MostCalls = 2000; // more than any command here makes

struct NamedFailure {
    const char* name;
    FailingFiles::Failure failure;
};

void PrintTo(const NamedFailure& failure, std::ostream* stream)
{
    *stream << failure.name;
}

constexpr NamedFailure Failures[] = {
    {"OneCallFails", {.calls = FailingFiles::AllCalls}},
    {"AllCallsFailFromThenOn", {.calls = FailingFiles::AllCalls, .lasts = true}},
    {"AWriteIsCutShort", {.calls = FailingFiles::Write, .writesHalf = true}},
    {"TheDiskIsFullForAMoment", {.calls = FailingFiles::Growing, .reason = FailingFiles::Reason::DiskFull}},
    {"TheDiskStaysFull",
     {.calls = FailingFiles::Growing,
      .reason = FailingFiles::Reason::DiskFull,
      .lasts = true,
      .writesHalf = true}},
};

/// Runs one command with the first file call failing, then the second, and so on until none fails any more.
class FailureSweep : public StoreTest, public testing::WithParamInterface<NamedFailure>
{
protected:
    using Act = std::function<void()>;
    /// Prepares the database, without failures, and returns what is to run.
    using Command = std::function<Act(SqliteLayerDatabase&)>;

    FailureSweep()
    {
        const auto database = SqliteLayerDatabase::Open(m_original);
        AddGroup(*database, 5, QStringLiteral("Group"), 0);
        AddMember(*database, 5, 1, 0);
        AddMember(*database, 5, 2, 1);
    }

    void Sweep(const Command& command)
    {
        const Outcome whole = Run(command, 0);
        ASSERT_EQ(whole.error, 0);
        ASSERT_NE(whole.before, whole.after);
        for (int number = 1; number < MostCalls; ++number) {
            const Outcome outcome = Run(command, number);
            const auto trace = "call " + std::to_string(number) + ", " + m_files.FirstFailure();
            ExpectTruthful(outcome, whole, trace);
            if (!m_files.HasFailed()) {
                EXPECT_EQ(outcome.error, 0);
                EXPECT_GT(number, 1) << "nothing ever failed";
                return;
            }
        }
        FAIL() << "it never ran without a failure";
    }

    /// A database in which each edit can be made; the file is a new one for each run.
    std::unique_ptr<SqliteLayerDatabase> Fresh()
    {
        for (const QString& name : FilesThere().filter(QStringLiteral("run.ovl")))
            QFile::remove(PathOf(name));
        EXPECT_TRUE(QFile::copy(m_original, m_run));
        return SqliteLayerDatabase::Open(m_run);
    }

    void FailFrom(int number)
    {
        FailingFiles::Failure failure = GetParam().failure;
        failure.number = number;
        m_files.Fail(failure);
    }

    const QString m_run = PathOf(QStringLiteral("run.ovl"));
    const QString m_copy = PathOf(QStringLiteral("copy.ovl"));
    FailingFiles m_files;

private:
    struct Outcome {
        int error = 0;
        int laterError = 0; // of an edit when nothing failed any more
        std::string before;
        std::string after;
        std::string later;
    };

    // number: of the call that fails; 0 when none does.
    Outcome Run(const Command& command, int number)
    {
        Outcome outcome;
        QFile::remove(m_copy);
        auto database = Fresh();
        const Act act = command(*database);
        outcome.before = State();
        if (number > 0)
            FailFrom(number);
        outcome.error = ErrorOf(act);
        m_files.Heal();
        outcome.laterError = ErrorOf(
            [&] { database->Execute(QStringLiteral("UPDATE Layers SET Priority = 77 WHERE LayerID = 3")); });
        database.reset();
        outcome.after = State();
        outcome.later = RawDatabase(m_run).Text("SELECT Priority FROM Layers WHERE LayerID = 3");
        return outcome;
    }

    static void ExpectTruthful(const Outcome& outcome, const Outcome& whole, const std::string& trace)
    {
        if (outcome.error == 0)
            EXPECT_EQ(outcome.after, whole.after) << "though it succeeded; " << trace;
        else
            EXPECT_THAT(outcome.after, AnyOf(whole.before, whole.after)) << trace;
        EXPECT_EQ(outcome.laterError, 0) << "the database must be usable again; " << trace;
        EXPECT_EQ(outcome.later, "77") << "a later edit is lost; " << trace;
    }

    // Everything in the file and in the copy, except for what the later edit changes.
    std::string State()
    {
        return Everything(m_run) + " copy: " + (QFile::exists(m_copy) ? Everything(m_copy) : "none");
    }

    static std::string Everything(const QString& path)
    {
        RawDatabase file(path);
        return file.Text("SELECT group_concat(LayerID || Name || Code) FROM Layers") + '/'
            + file.Text("SELECT group_concat(ID || Name) FROM LayerGroups") + '/'
            + file.Text("SELECT group_concat(GroupID || '-' || LayerID) FROM LayerGroupMembers") + '/'
            + file.Text("PRAGMA integrity_check");
    }

    const QString m_original = MadeFile(QStringLiteral("original.ovl"), 3);
};

} // namespace

TEST_P(FailureSweep, AnEditIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act { return [&] { SetCode(database, 1, 5); }; });
}

TEST_P(FailureSweep, ATransactionIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act { return [&] { ChangeInTransactions(database); }; });
}

TEST_P(FailureSweep, AnUndoIsStoredWholeOrNotAtAll)
{
    Sweep([](SqliteLayerDatabase& database) -> Act {
        const auto recorder = database.RecordChanges();
        SetCode(database, 1, 5);
        database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
        const Changeset undo = recorder->Changes().Inverted();
        return [&database, undo] { EXPECT_TRUE(database.Apply(undo)) << "not a conflict"; };
    });
}

TEST_P(FailureSweep, ACopyIsWholeOrNotThere)
{
    Sweep([&](SqliteLayerDatabase& database) -> Act { return [&] { database.CopyToFile(m_copy); }; });
}

// Each row is larger than half a page and the cache is small, so that rows are written before the commit.
TEST_P(FailureSweep, WhoGoesOnAfterAnErrorStoresWhatSucceededOrNothing)
{
    const QString text(2500, u'x');
    for (int number = 1; number < MostCalls; ++number) {
        auto database = Fresh();
        database->Execute(QStringLiteral("PRAGMA cache_size = 10"));
        FailFrom(number);
        int added = 0;
        const int error = ErrorOf([&] {
            Transaction transaction(*database);
            for (int id = 100; id < 120; ++id)
                added += ErrorOf([&] { AddLayer(*database, id, text); }) == 0;
            transaction.Commit();
        });
        m_files.Heal();
        database.reset();
        const std::string stored
            = RawDatabase(m_run).Text("SELECT count(*) FROM Layers WHERE LayerID >= 100");
        if (error == 0)
            ASSERT_EQ(stored, std::to_string(added)) << number << ' ' << m_files.FirstFailure();
        else
            ASSERT_THAT(stored, AnyOf("0", "20")) << number << ' ' << m_files.FirstFailure();
        if (!m_files.HasFailed())
            return;
    }
    FAIL() << "it never ran without a failure";
}

INSTANTIATE_TEST_SUITE_P(
    WhateverFails, FailureSweep, testing::ValuesIn(Failures),
    [](const testing::TestParamInfo<NamedFailure>& info) { return std::string(info.param.name); });

} // namespace Orvane::Testing
