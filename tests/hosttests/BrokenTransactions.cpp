// SPDX-License-Identifier: MIT
#include "hosttests/FaultyDatabase.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

namespace {

/// Knows one level only.
class FlatClient : public ForwardingClient
{
public:
    explicit FlatClient(IStyleEditorClient& client)
        : ForwardingClient(client), m_database(client.GetDatabase())
    {
    }

private:
    class FlatDatabase : public ForwardingDatabase
    {
        using ForwardingDatabase::ForwardingDatabase;
        void ILayerDatabase_BeginTrans() override
        {
            if (!m_open)
                Wrapped().BeginTrans();
            m_open = true;
        }
        void ILayerDatabase_CommitTrans() override
        {
            if (m_open)
                Wrapped().CommitTrans();
            m_open = false;
        }
        void ILayerDatabase_Rollback() override
        {
            Wrapped().Rollback();
            m_open = false;
        }
        bool m_open = false;
    };

    ILayerDatabase& IStyleEditorClient_Database() override { return m_database; }

    FlatDatabase m_database;
};

/// Ends all levels when it ends one, and wants one to be open.
class StrictClient : public ForwardingClient
{
public:
    explicit StrictClient(IStyleEditorClient& client)
        : ForwardingClient(client), m_database(client.GetDatabase())
    {
    }

private:
    class StrictDatabase : public ForwardingDatabase
    {
        using ForwardingDatabase::ForwardingDatabase;
        void ILayerDatabase_BeginTrans() override
        {
            Wrapped().BeginTrans();
            ++m_depth;
        }
        void ILayerDatabase_CommitTrans() override
        {
            Wrapped().CommitTrans();
            --m_depth;
        }
        void ILayerDatabase_Rollback() override
        {
            if (m_depth == 0)
                throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("no transaction"));
            Wrapped().Rollback();
            --m_depth;
        }
        int m_depth = 0;
    };

    ILayerDatabase& IStyleEditorClient_Database() override { return m_database; }

    StrictDatabase m_database;
};

/// Says that it cannot write, and writes.
class SecretlyWriting : public StoreHost
{
    using StoreHost::StoreHost;

public:
    QString WhyNot(Ability ability) const override
    {
        return ability == Ability::Writing ? QStringLiteral("read-only") : QString();
    }
};

/// The other program has another file.
class OtherFile : public FileHost
{
public:
    using FileHost::FileHost;

    std::unique_ptr<HostTests::IHostUnderTest> OpenAgain() override
    {
        return std::make_unique<FileHost>(HostTests::Town());
    }
};

void CommitInstead(ILayerDatabase& database)
{
    try {
        database.CommitTrans();
    } catch (const RunTimeError&) { // none is open
    }
}

} // namespace

std::vector<BrokenHost> HostsWithBrokenTransactions()
{
    return {
        {"ItsCommitRollsBack",
         With({.commit = [](ILayerDatabase& database) { database.Rollback(); }}),
         {"ACommitKeepsTheChanges"}},
        {"ItsRollbackDoesNothing",
         With({.rollback = CommitInstead}),
         {"ARollbackUndoesTheChanges", "ARollbackIsSeenByQueriesAndByTheClient",
          "ARollbackAfterAnErrorUndoesTheRest", "AnOpenCursorSurvivesThem",
          "AGroupIsAppliedWhollyOrNotAtAll"}},
        {"ItsTransactionsStayOpen", With({.commit = [](ILayerDatabase&) {}}), {"ReadingOneLeavesNoneOpen"}},
        {"ItKnowsOneLevel",
         Behind<FlatClient>(),
         {"OnlyTheOuterCommitStores", "AnInnerRollbackKeepsTheOuterChanges"}},
        {"ItRefusesARollbackWithoutATransaction",
         Behind<StrictClient>(),
         {"ARollbackWithoutATransactionDoesNothing"}},
        {"ItIsNotReadOnly", HostTests::HostMaker<SecretlyWriting>(), {"AReadOnlyDatabaseRefusesEdits"}},
        {"ItOpensAnotherFile", HostTests::HostMaker<OtherFile>(), {"AnotherProgramSeesWhatIsCommitted"}},
    };
}

} // namespace Orvane::Testing
