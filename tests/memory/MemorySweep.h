// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/IFault.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>

namespace Orvane::Testing {

/// A command that is run once for each allocation that can fail in it.
struct SweptCommand {
    /// Makes a fresh start, without failures, and returns what is to run.
    std::function<std::function<void()>()> prepare;
    /// Makes one more edit, without failures, and closes everything. Whatever it raises fails the test.
    std::function<void()> goOn;
    /// Everything that is stored or was read, after goOn.
    std::function<std::string()> state;
    /// Only each nth allocation fails, for commands that make thousands; ORVANE_EACH_ALLOCATION=1 in the
    /// environment lets all fail nevertheless.
    int stride = 1;
};

/// Lets the first allocation of the command fail, then the second, and so on until none fails any more. After
/// each failure the command must have happened whole or not at all, whole if it reported success, and the
/// next edit must work; SQLite must have freed all memory. An error may be std::bad_alloc or the RunTimeError
/// DatabaseFailure: anything else, for example that a map is damaged or locked, would be untrue.
void SweepMemory(IFault& fault, const SweptCommand& command);

/// Ways in which memory can be missing, for INSTANTIATE_TEST_SUITE_P.
enum class MissingMemory { OnceInSqlite, InSqliteFromThenOn, OnceInNew, InNewFromThenOn };

void PrintTo(MissingMemory kind, std::ostream* stream);
std::unique_ptr<IFault> MakeFault(MissingMemory kind);

/// Instantiates a suite of MissingMemory for all kinds.
inline auto AllKindsOfMissingMemory()
{
    return testing::Values(
        MissingMemory::OnceInSqlite, MissingMemory::InSqliteFromThenOn, MissingMemory::OnceInNew,
        MissingMemory::InNewFromThenOn);
}

/// The name of a kind in names of tests.
std::string NameOfKind(const testing::TestParamInfo<MissingMemory>& info);

} // namespace Orvane::Testing
