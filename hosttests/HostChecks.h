// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hosttests/HostContents.h>
#include <orvane/hosttests/IHostUnderTest.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace Orvane::HostTests {

class CheckRun;

/// One thing that a host must do. HostTests.h makes a GoogleTest test of each; without GoogleTest, run them
/// with RunCheck.
struct HostCheck {
    const char* group; ///< "Queries"
    const char* name; ///< a sentence in one word: "TheListGoesByNameWithoutCase"
    const char* duty; ///< what a host must do, for the message of the failed test
    std::vector<Ability> needs; ///< skipped for a host without one of these
    HostContents (*contents)(); ///< what the layer database holds at first
    std::function<void(CheckRun& run)> run; ///< notes what it finds in the run
};

/// What a check found.
struct CheckResult {
    QString skipped; ///< why the check was not run; empty if it was
    QStringList findings; ///< what the host does wrong; empty if nothing
};

/// All checks except those with the dialog.
std::vector<HostCheck> AllHostChecks();

/// Makes a host and runs the check on it. Raises nothing: errors of the host are findings.
CheckResult RunCheck(const HostCheck& check, const MakeHost& makeHost);

} // namespace Orvane::HostTests
