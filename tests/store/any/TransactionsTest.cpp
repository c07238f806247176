// SPDX-License-Identifier: MIT
#include "store/any/AnyStoreTest.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);

class Transactions : public AnyStoreTest
{
protected:
    Transactions() { AddLayer(*m_database, 1, QStringLiteral("As it was")); }

    void Rename(const char* name)
    {
        const auto layer = SeekLayer(*m_database, 1);
        layer->Edit();
        layer->SetField("Name", QString::fromLatin1(name));
        layer->Update();
    }

    void ExpectName(const char* name) { EXPECT_EQ(NameOfLayer(*m_database, 1), QString::fromLatin1(name)); }

    const std::unique_ptr<ILayerStore> m_database = NewStore();
};

} // namespace

TEST_F(Transactions, ACommitKeepsTheChanges)
{
    m_database->BeginTrans();
    Rename("Changed");
    m_database->CommitTrans();
    ExpectName("Changed");
}

TEST_F(Transactions, ARollbackUndoesThem)
{
    m_database->BeginTrans();
    Rename("Changed");
    m_database->Rollback();
    ExpectName("As it was");
}

TEST_F(Transactions, OtherConnectionsSeeNothingBeforeTheCommit)
{
    const auto other = OtherProgram(*m_database);
    m_database->BeginTrans();
    Rename("Changed");
    EXPECT_EQ(other->Text("SELECT Name FROM Layers"), "As it was");
    m_database->CommitTrans();
    EXPECT_EQ(other->Text("SELECT Name FROM Layers"), "Changed");
}

TEST_F(Transactions, AnInnerRollbackUndoesOnlyWhatIsInner)
{
    m_database->BeginTrans();
    Rename("Outer");
    m_database->BeginTrans();
    Rename("Inner");
    m_database->Rollback();
    ExpectName("Outer");
    m_database->CommitTrans();
    ExpectName("Outer");
}

TEST_F(Transactions, AnInnerCommitStoresOnlyWithTheOuterOne)
{
    m_database->BeginTrans();
    m_database->BeginTrans();
    Rename("Inner");
    m_database->CommitTrans();
    m_database->Rollback();
    ExpectName("As it was");
}

TEST_F(Transactions, ThreeLevelsAreKeptApart)
{
    m_database->BeginTrans();
    m_database->BeginTrans();
    Rename("Second");
    m_database->BeginTrans();
    Rename("Third");
    m_database->Rollback();
    m_database->CommitTrans();
    m_database->BeginTrans();
    Rename("Second again");
    m_database->Rollback();
    m_database->CommitTrans();
    ExpectName("Second");
}

TEST_F(Transactions, ARollbackWithoutATransactionDoesNothing)
{
    m_database->Rollback();
    ExpectName("As it was");
}

TEST_F(Transactions, ACommitWithoutATransactionIsRefused)
{
    EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure);
}

TEST_F(Transactions, ATableCursorReadsTheRowAnewAfterARollback)
{
    m_database->BeginTrans();
    const auto layer = SeekLayer(*m_database, 1);
    layer->Edit();
    layer->SetField("Name", QStringLiteral("Changed"));
    layer->Update();
    m_database->Rollback();
    EXPECT_EQ(ToText(layer->Field("Name")), QStringLiteral("As it was"));
}

TEST_F(Transactions, AGuardRollsBackWhatWasNotCommitted)
{
    {
        Transaction transaction(*m_database);
        Rename("Changed");
    }
    ExpectName("As it was");
    EXPECT_EQ(ErrorOf([&] { m_database->CommitTrans(); }), Failure) << "the guard left a transaction open";
}

TEST_F(Transactions, AGuardKeepsWhatWasCommitted)
{
    {
        Transaction transaction(*m_database);
        Rename("Changed");
        transaction.Commit();
    }
    ExpectName("Changed");
}

TEST_F(Transactions, AGuardRollsBackWhenAnErrorPasses)
{
    const auto failing = [&] {
        Transaction transaction(*m_database);
        Rename("Changed");
        AddLayer(*m_database, 1, QStringLiteral("Twice"));
        transaction.Commit();
    };
    EXPECT_EQ(ErrorOf(failing), Failure);
    ExpectName("As it was");
}

TEST_F(Transactions, AGuardInsideAGuardUndoesItsOwnPart)
{
    Transaction outer(*m_database);
    Rename("Outer");
    {
        Transaction inner(*m_database);
        Rename("Inner");
    }
    outer.Commit();
    ExpectName("Outer");
}

} // namespace Orvane::Testing
