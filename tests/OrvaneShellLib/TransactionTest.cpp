// SPDX-License-Identifier: MIT

#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Transaction.h>

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;

namespace {

class TransactionOf : public testing::Test
{
protected:
    void HideLayer()
    {
        const auto layers = host.LayersTable();
        layers->Index("LayerIDIDX");
        layers->Seek("=", 17);
        layers->Edit();
        layers->SetField("Visible", false);
        layers->Update();
    }

    MemoryHost host;
};

} // namespace

TEST_F(TransactionOf, KeepsWhatWasCommitted)
{
    host.AddLayer({.id = 17, .visible = true});
    {
        Transaction transaction(host.GetDatabase());
        HideLayer();
        transaction.Commit();
    }
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(false));
    EXPECT_EQ(host.Log().CallsTo("Rollback").size(), 0);
}

TEST_F(TransactionOf, UndoesWhatWasNotCommitted)
{
    host.AddLayer({.id = 17, .visible = true});
    {
        Transaction transaction(host.GetDatabase());
        HideLayer();
    }
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(true));
}

TEST_F(TransactionOf, RollsBackAfterACommitThatRaised)
{
    FailingClient client(host, {"CommitTrans", 1, RunTimeError(10001, "disk full")});
    const auto error = RaisedBy([&] {
        Transaction transaction(client.GetDatabase());
        transaction.Commit();
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 10001);
    EXPECT_THAT(host.Log().Trace(), ElementsAre("BeginTrans()", "Rollback()"));
}

TEST_F(TransactionOf, DoesNotRollBackWhatNeverBegan)
{
    FailingClient client(host, {"BeginTrans", 1, RunTimeError(10001, "locked")});
    EXPECT_EQ(ErrorOf([&] { Transaction transaction(client.GetDatabase()); }), 10001);
    EXPECT_TRUE(host.Log().Trace().isEmpty());
}

TEST_F(TransactionOf, AFailingRollbackDoesNotHideTheErrorBefore)
{
    FailingClient client(host, {"Rollback", 1, RunTimeError(10001, "connection lost")});
    const int number = ErrorOf([&] {
        Transaction transaction(client.GetDatabase());
        throw RunTimeError(10002, "first");
    });
    EXPECT_EQ(number, 10002);
}
