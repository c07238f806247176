// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/any/AnyStoreTest.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

namespace {

constexpr int LayerCount = 500; // a statement over all of them takes several looks

const QString Thicken = QStringLiteral("UPDATE Layers SET Priority = Priority + 3, MaxVisScale = 17 WHERE ")
    + StoreMaker::Dawdling();

/// A map with many layers, whose work is cancelled when the test asks for it.
class CancelledWork : public AnyStoreTest
{
protected:
    ILayerStore& Map() { return *m_map; }
    // All that the map holds.
    std::vector<qint32> Content()
    {
        return Column(Map(), QStringLiteral("SELECT Priority FROM Layers ORDER BY LayerID"), "Priority");
    }
    void CancelAfter(int looks)
    {
        Map().SetWatcher([looks](double) mutable { return looks-- > 0; });
    }
    void CancelNothing() { Map().SetWatcher({}); }

private:
    const std::unique_ptr<ILayerStore> m_map = Opened(MadeStore(LayerCount));
};

TEST_F(CancelledWork, OfOneStatementLeavesTheRows)
{
    const std::vector<qint32> before = Content();
    CancelAfter(2);
    EXPECT_EQ(ErrorOf([&] { Map().Execute(Thicken); }), int(UserCancelled));
    CancelNothing();
    EXPECT_EQ(Content(), before);
}

TEST_F(CancelledWork, CanBeRepeated)
{
    CancelAfter(2);
    EXPECT_EQ(ErrorOf([&] { Map().Execute(Thicken); }), int(UserCancelled));
    CancelNothing();
    EXPECT_EQ(Map().Execute(Thicken), LayerCount);
}

TEST_F(CancelledWork, OfATransactionUndoesWhatItDidBefore)
{
    const std::vector<qint32> before = Content();
    EXPECT_EQ(
        ErrorOf([&] {
            Transaction outer(Map());
            Map().Execute(Thicken);
            Transaction inner(Map());
            Map().Execute(Thicken);
            CancelAfter(1);
            Map().Execute(Thicken);
        }),
        int(UserCancelled));
    CancelNothing();
    EXPECT_EQ(Content(), before);
    Transaction again(Map());
    Map().Execute(Thicken);
    again.Commit();
    EXPECT_NE(Content(), before);
}

TEST_F(CancelledWork, RecordsNoChanges)
{
    const auto recorder = Map().RecordChanges();
    CancelAfter(2);
    EXPECT_EQ(ErrorOf([&] { Map().Execute(Thicken); }), int(UserCancelled));
    CancelNothing();
    EXPECT_TRUE(recorder->Changes().IsEmpty());
}

TEST_F(CancelledWork, OfAppliedChangesLeavesTheRows)
{
    const auto recorder = Map().RecordChanges();
    Map().Execute(Thicken);
    const Changeset back = recorder->Changes().Inverted();
    const std::vector<qint32> before = Content();
    CancelAfter(2);
    EXPECT_EQ(ErrorOf([&] { Map().Apply(back); }), int(UserCancelled));
    CancelNothing();
    EXPECT_EQ(Content(), before);
    EXPECT_TRUE(Map().Apply(back).has_value());
    EXPECT_NE(Content(), before);
}

TEST_F(CancelledWork, NeverEndsACommit)
{
    Transaction transaction(Map());
    Map().Execute(Thicken);
    const std::vector<qint32> changed = Content();
    Map().SetWatcher([](double) { return false; });
    EXPECT_EQ(ErrorOf([&] { Map().AskWatcher(); }), int(UserCancelled));
    transaction.Commit();
    CancelNothing();
    EXPECT_EQ(Content(), changed);
}

TEST_F(CancelledWork, OfReadingEndsTheQuery)
{
    CancelAfter(0);
    EXPECT_EQ(ErrorOf([&] { Content(); }), int(UserCancelled));
    CancelNothing();
    EXPECT_EQ(Content().size(), size_t(LayerCount));
}

TEST_F(CancelledWork, OfTheCallersLoopRaises)
{
    EXPECT_NO_THROW(Map().AskWatcher(0.5));
    double told = 0;
    Map().SetWatcher([&](double done) { return (told = done) < 0.4; });
    EXPECT_NO_THROW(Map().AskWatcher(0.25));
    EXPECT_EQ(told, 0.25);
    EXPECT_EQ(ErrorOf([&] { Map().AskWatcher(0.5); }), int(UserCancelled));
}

TEST_F(CancelledWork, TellsHowMuchIsApplied)
{
    const auto recorder = Map().RecordChanges();
    Map().Execute(Thicken);
    std::vector<double> told;
    Map().SetWatcher([&](double done) {
        told.push_back(done);
        return true;
    });
    Map().Apply(recorder->Changes().Inverted());
    ASSERT_GT(told.size(), 2U);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GT(told.back(), 0.5);
}

TEST_F(CancelledWork, RefusesEverythingWhileTheWatcherRuns)
{
    const std::vector<std::function<void()>> calls = {
        [&] { Map().Execute(Thicken); },
        [&] { Map().OpenQuery(QStringLiteral("SELECT * FROM Layers")); },
        [&] { Map().OpenRecordset(QStringLiteral("Layers")); },
        [&] { Map().HasTable(QStringLiteral("Layers")); },
        [&] { Map().RecordChanges(); },
        [&] { Map().ForeignChanges(); },
        [&] { Map().BeginTrans(); },
        [&] { Map().CommitTrans(); },
        [&] { Map().Rollback(); },
        [&] { Map().Apply({}); },
        [&] { Map().AskWatcher(); },
        [&] { Map().SetWatcher({}); },
    };
    size_t next = 0;
    Map().SetWatcher([&](double) {
        if (next < calls.size()) {
            EXPECT_EQ(ErrorOf(calls[next]), int(ErrorNumber::DatabaseFailure)) << next;
            ++next;
        }
        return true;
    });
    while (next < calls.size())
        Map().Execute(Thicken);
    CancelNothing();
    EXPECT_EQ(Content().size(), size_t(LayerCount));
}

} // namespace

} // namespace Orvane::Testing
