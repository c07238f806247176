// SPDX-License-Identifier: MIT
#include "memory/MemorySweep.h"

#include "sweep/NewFault.h"
#include "sweep/SqliteMemoryFault.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QtGlobal>

#include <cstdio>
#include <gmock/gmock.h>
#include <new>
#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

using testing::AnyOf;

constexpr int MostAllocations = 20'000; // more than any command here makes

enum class Ending { Done, Refused, NoMemory };

struct Outcome {
    Ending ending = Ending::Done;
    int error = 0; // of a refusal
    std::string state;
    sqlite3_int64 kept = 0; // bytes that SQLite did not free
};

// Only what the program itself would catch: anything else ends the test program, as it would end the program.
Ending EndingOf(const std::function<void()>& act, int& error)
{
    try {
        act();
        return Ending::Done;
    } catch (const RunTimeError& raised) {
        error = raised.Number();
        return Ending::Refused;
    } catch (const std::bad_alloc&) {
        return Ending::NoMemory;
    }
}

Outcome OutcomeOf(const SweptCommand& command, const std::function<void(const std::function<void()>&)>& run)
{
    Outcome outcome;
    const sqlite3_int64 used = sqlite3_memory_used();
    {
        const std::function<void()> act = command.prepare();
        run(act);
    }
    command.goOn();
    outcome.state = command.state();
    outcome.kept = sqlite3_memory_used() - used;
    return outcome;
}

Outcome RunWith(IFault& fault, int number, const SweptCommand& command)
{
    Ending ending = Ending::Done;
    int error = 0;
    Outcome outcome = OutcomeOf(command, [&](const std::function<void()>& act) {
        fault.Arm(number);
        ending = EndingOf(act, error);
        fault.Disarm();
    });
    outcome.ending = ending;
    outcome.error = error;
    return outcome;
}

void ExpectTruthful(const Outcome& outcome, const Outcome& before, const Outcome& after)
{
    if (outcome.ending == Ending::Done)
        EXPECT_EQ(outcome.state, after.state) << "though it succeeded";
    else
        EXPECT_THAT(outcome.state, AnyOf(before.state, after.state));
    if (outcome.ending == Ending::Refused)
        EXPECT_EQ(outcome.error, int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(outcome.kept, 0) << "bytes that SQLite did not free";
}

} // namespace

void SweepMemory(IFault& fault, const SweptCommand& command)
{
    const Outcome before = OutcomeOf(command, [](const std::function<void()>&) {});
    const Outcome after = OutcomeOf(command, [](const std::function<void()>& act) { act(); });
    const int stride = qEnvironmentVariableIsSet("ORVANE_EACH_ALLOCATION") ? 1 : command.stride;
    int runs = 0;
    int refused = 0;
    for (int number = 1; number < MostAllocations; number += stride, ++runs) {
        const Outcome outcome = RunWith(fault, number, command);
        const testing::ScopedTrace trace(__FILE__, __LINE__, fault.Name() + ": " + fault.FirstFailure());
        ExpectTruthful(outcome, before, after);
        refused += outcome.ending == Ending::Done ? 0 : 1;
        if (!fault.HasFailed()) {
            EXPECT_EQ(outcome.ending, Ending::Done);
            EXPECT_GT(number, 1) << "nothing ever failed";
            std::printf("%s: %d failures, %d of them reported\n", fault.Name().c_str(), runs, refused);
            return;
        }
        if (testing::Test::HasFailure())
            return;
    }
    FAIL() << "it never ran without a failure";
}

void PrintTo(MissingMemory kind, std::ostream* stream)
{
    *stream << MakeFault(kind)->Name();
}

std::unique_ptr<IFault> MakeFault(MissingMemory kind)
{
    switch (kind) {
    case MissingMemory::OnceInSqlite:
        return std::make_unique<SqliteMemoryFault>();
    case MissingMemory::InSqliteFromThenOn:
        return std::make_unique<SqliteMemoryFault>(Extent::FromThenOn);
    case MissingMemory::OnceInNew:
        return std::make_unique<NewFault>();
    default:
        return std::make_unique<NewFault>(Extent::FromThenOn);
    }
}

std::string NameOfKind(const testing::TestParamInfo<MissingMemory>& info)
{
    return MakeFault(info.param)->Name();
}

} // namespace Orvane::Testing
