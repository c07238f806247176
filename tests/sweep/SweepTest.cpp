// SPDX-License-Identifier: MIT
#include "sweep/Sweep.h"

#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <QFile>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

using StoreAct = std::function<void(ILayerStore&)>;

void SetColor(ILayerStore& store, qint32 layerID)
{
    store.Execute(QStringLiteral("UPDATE Layers SET Color = 5 WHERE LayerID = ?1"), {layerID});
}

void SetTwoColors(ILayerStore& store)
{
    SetColor(store, 1);
    SetColor(store, 2);
}

CommandPreparation Prepared(const StoreAct& act)
{
    return [act](const SweepBench& bench) -> PreparedCommand {
        const std::shared_ptr<ILayerStore> store = LayerStores::Open(bench.folder.MapPath());
        return {[store, act] { act(*store); }, store.get()};
    };
}

// The exit code of a sweep over that command.
int ExitCodeOf(const StoreAct& act, const CommandPreparation& firstStep = {})
{
    return Sweep({1, 1, {}, false}, {{"command", Prepared(act), firstStep}}).Run();
}

} // namespace

TEST(SweepTest, ATransactionSurvives)
{
    EXPECT_EQ(
        ExitCodeOf([](ILayerStore& store) {
            Transaction transaction(store);
            SetTwoColors(store);
            transaction.Commit();
        }),
        0);
}

TEST(SweepTest, TwoStepsAreAMixture)
{
    EXPECT_EQ(ExitCodeOf(SetTwoColors), 1);
}

TEST(SweepTest, TwoStepsMayBeAllowed)
{
    EXPECT_EQ(ExitCodeOf(SetTwoColors, Prepared([](ILayerStore& store) { SetColor(store, 1); })), 0);
}

TEST(SweepTest, AnErrorThatIsNotToldIsFound)
{
    EXPECT_EQ(
        ExitCodeOf([](ILayerStore& store) {
            try {
                SetColor(store, 1);
            } catch (const RunTimeError&) {
                return;
            }
        }),
        1);
}

TEST(SweepTest, AFileThatStaysBehindIsFound)
{
    EXPECT_EQ(
        ExitCodeOf([](ILayerStore& store) {
            QFile left(store.Path() + QStringLiteral(".part"));
            EXPECT_TRUE(left.open(QIODevice::WriteOnly));
            SetColor(store, 1);
            EXPECT_TRUE(left.remove());
        }),
        1);
}

TEST(SweepTest, ATransactionThatStaysOpenIsFound)
{
    EXPECT_EQ(
        ExitCodeOf([](ILayerStore& store) {
            store.BeginTrans();
            SetColor(store, 1);
            store.CommitTrans();
        }),
        1);
}

TEST(SweepTest, ACommandThatFailsByItselfIsNoCommand)
{
    EXPECT_ANY_THROW(ExitCodeOf([](ILayerStore&) { throw RunTimeError(1, QStringLiteral("no")); }));
}

} // namespace Orvane::Testing
