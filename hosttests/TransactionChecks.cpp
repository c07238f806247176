// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::HostTests {

namespace {

using ComponentCalls::OpenLayersByID;
using ComponentCalls::SeekID;

constexpr qint32 edited = TownLayer::Rivers;
constexpr qint32 untouched = TownLayer::Zoning;

Value PriorityOf(IStyleEditorClient& client, qint32 layerID)
{
    const auto layers = OpenLayersByID(client);
    return SeekID(*layers, layerID) ? layers->Field("Priority") : Value();
}

void SetPriority(IStyleEditorClient& client, qint32 layerID, qint32 priority)
{
    const auto layers = OpenLayersByID(client);
    SeekID(*layers, layerID);
    client.BeginLayerEdit(*layers);
    layers->SetField("Priority", priority);
    client.LayerChanged(layerID);
    layers->Update();
}

void ExpectPriority(CheckRun& run, const QString& when, qint32 layerID, const Value& expected)
{
    run.ExpectValue(
        QStringLiteral("Priority of layer %1 %2").arg(layerID).arg(when), PriorityOf(run.Client(), layerID),
        expected);
}

Value AtFirst(CheckRun& run, qint32 layerID)
{
    return run.Contents().Layer(layerID).Get("Priority");
}

void CheckCommit(CheckRun& run)
{
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 11);
    ExpectPriority(run, QStringLiteral("inside the transaction"), edited, 11);
    SetPriority(run.Client(), untouched, 12);
    run.Database().CommitTrans();
    ExpectPriority(run, QStringLiteral("after the commit"), edited, 11);
    ExpectPriority(run, QStringLiteral("after the commit"), untouched, 12);
    run.Database().Rollback();
    ExpectPriority(run, QStringLiteral("after a rollback outside of a transaction"), edited, 11);
}

void CheckRollback(CheckRun& run)
{
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 11);
    ComponentCalls::SetExpanded(run.Client(), TownGroup::Water, true);
    run.Database().Rollback();
    ExpectPriority(run, QStringLiteral("after the rollback"), edited, AtFirst(run, edited));
    const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
    SeekID(*groups, TownGroup::Water);
    run.ExpectValue(QStringLiteral("Expanded after the rollback"), groups->Field("Expanded"), false);
}

void CheckRollbackOfQueries(CheckRun& run)
{
    run.Database().BeginTrans();
    ComponentCalls::SetCode(run.Client(), edited, -2);
    const QString query = LayerQueries::OneLayer(edited);
    run.ExpectIDs(
        QStringLiteral("OneLayer inside the transaction"),
        ComponentCalls::IDsIn(run.Database(), query, "LayerID"), {});
    run.Database().Rollback();
    run.ExpectIDs(
        QStringLiteral("OneLayer after the rollback"),
        ComponentCalls::IDsIn(run.Database(), query, "LayerID"), {edited});
    run.Expect(
        run.Client().IsCodeAssigned(12), QStringLiteral("IsCodeAssigned(12) is false after the rollback"));
}

void CheckIdleRollback(CheckRun& run)
{
    run.Database().Rollback();
    run.Database().Rollback();
    CheckCommit(run);
}

void CheckRollbackAfterError(CheckRun& run)
{
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 11);
    {
        const auto layers = OpenLayersByID(run.Client());
        SeekID(*layers, untouched);
        run.Client().BeginLayerEdit(*layers);
        layers->SetField("Visible", false);
        run.ExpectError(QStringLiteral("SetField with Empty"), [&] { layers->SetField("Color", Value()); });
    }
    run.Database().Rollback();
    ExpectPriority(run, QStringLiteral("after the rollback"), edited, AtFirst(run, edited));
    CheckCommit(run);
}

void CheckCursorInTransaction(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    SeekID(*layers, edited);
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 11);
    run.Database().Rollback();
    SeekID(*layers, edited);
    run.ExpectValue(
        QStringLiteral("Priority for a cursor that was open before"), layers->Field("Priority"),
        AtFirst(run, edited));
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 12);
    run.Database().CommitTrans();
    SeekID(*layers, edited);
    run.ExpectValue(QStringLiteral("Priority for that cursor after a commit"), layers->Field("Priority"), 12);
}

void CheckNestedCommit(CheckRun& run)
{
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 11);
    run.Database().BeginTrans();
    SetPriority(run.Client(), untouched, 12);
    run.Database().CommitTrans();
    run.Database().Rollback();
    ExpectPriority(run, QStringLiteral("after the outer rollback"), edited, AtFirst(run, edited));
    ExpectPriority(run, QStringLiteral("after the outer rollback"), untouched, AtFirst(run, untouched));
}

void CheckNestedRollback(CheckRun& run)
{
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 11);
    run.Database().BeginTrans();
    SetPriority(run.Client(), edited, 12);
    SetPriority(run.Client(), untouched, 12);
    run.Database().Rollback();
    ExpectPriority(run, QStringLiteral("after the inner rollback"), edited, 11);
    run.Database().CommitTrans();
    ExpectPriority(run, QStringLiteral("after the outer commit"), edited, 11);
    ExpectPriority(run, QStringLiteral("after the outer commit"), untouched, AtFirst(run, untouched));
}

void CheckReadingInTransaction(CheckRun& run)
{
    const auto styles = ComponentCalls::LoadGroup(run.Client(), TownGroup::Water);
    run.ExpectNumber(QStringLiteral("layers read"), qint64(styles.size()), 3);
    SetPriority(run.Client(), edited, 11);
    run.Database().Rollback();
    ExpectPriority(run, QStringLiteral("after a rollback outside of a transaction"), edited, 11);
}

void CheckSecondProgram(CheckRun& run)
{
    const auto other = run.Host().OpenAgain();
    if (!run.Expect(other != nullptr, QStringLiteral("OpenAgain returned nullptr")))
        return;
    const auto seen = [&other] { return PriorityOf(other->Client(), edited); };
    run.ExpectValue(QStringLiteral("Priority for the other program"), seen(), AtFirst(run, edited));
    {
        Transaction transaction(run.Database());
        SetPriority(run.Client(), edited, 11);
        run.Allow([&] {
            run.ExpectValue(
                QStringLiteral("Priority for the other program before the commit"), seen(),
                AtFirst(run, edited));
        });
        if (run.Allow([&] { SetPriority(other->Client(), edited, 99); }))
            run.Expect(false, QStringLiteral("the other program changed a row inside this transaction"));
        transaction.Commit();
    }
    run.ExpectValue(QStringLiteral("Priority for the other program after the commit"), seen(), 11);
    SetPriority(other->Client(), edited, 22);
    ExpectPriority(run, QStringLiteral("after the other program's change"), edited, 22);
}

} // namespace

std::vector<HostCheck> TransactionChecks()
{
    const std::vector<Ability> writing{Ability::Writing};
    const std::vector<Ability> nesting{Ability::Writing, Ability::NestedTransactions};
    return {
        {"Transactions", "ACommitKeepsTheChanges",
         "ILayerDatabase: changes are seen inside their transaction, and stay after CommitTrans.", writing,
         Town, CheckCommit},
        {"Transactions", "ARollbackUndoesTheChanges",
         "ILayerDatabase::Rollback: undoes all changes since BeginTrans, also those made through "
         "LayersTable.",
         writing, Town, CheckRollback},
        {"Transactions", "ARollbackIsSeenByQueriesAndByTheClient",
         "After a rollback, queries and IsCodeAssigned know nothing of the changes that were undone.",
         writing, Town, CheckRollbackOfQueries},
        {"Transactions", "ARollbackWithoutATransactionDoesNothing",
         "ILayerDatabase::Rollback: does nothing when no transaction is open.", writing, Town,
         CheckIdleRollback},
        {"Transactions", "ARollbackAfterAnErrorUndoesTheRest",
         "After an error inside a transaction, Rollback undoes everything, and the next transaction works.",
         writing, Town, CheckRollbackAfterError},
        {"Transactions", "AnOpenCursorSurvivesThem",
         "A table cursor can seek and read after a commit and after a rollback.", writing, Town,
         CheckCursorInTransaction},
        {"Transactions", "OnlyTheOuterCommitStores",
         "ILayerDatabase: transactions nest; a rollback of the outer one undoes what inner ones committed.",
         nesting, Town, CheckNestedCommit},
        {"Transactions", "AnInnerRollbackKeepsTheOuterChanges",
         "ILayerDatabase: transactions nest; Rollback ends only the innermost and undoes only its changes.",
         nesting, Town, CheckNestedRollback},
        {"Transactions", "ReadingOneLeavesNoneOpen",
         "A transaction that only reads can be committed; later transactions are not part of it.", writing,
         Town, CheckReadingInTransaction},
        {"Transactions",
         "AnotherProgramSeesWhatIsCommitted",
         "Another program on the same database sees changes after their commit and not before, cannot change "
         "the same row meanwhile, and its own changes are seen here.",
         {Ability::Writing, Ability::SecondProgram},
         Town,
         CheckSecondProgram},
    };
}

} // namespace Orvane::HostTests
