// SPDX-License-Identifier: MIT
#pragma once

#include "store/failing_files/FailingFiles.h"
#include "sweep/HostFault.h"
#include "sweep/IFault.h"
#include "sweep/SweepCommand.h"
#include "sweep/SweepFolder.h"
#include "sweep/SweepOptions.h"

#include <memory>
#include <string>
#include <vector>

namespace Orvane::Testing {

/// Runs every command with the first call failing, then with the second, and so on until none fails, for each
/// kind of failure, and looks at everything that is stored after each run.
class Sweep
{
public:
    Sweep(const SweepOptions& options, std::vector<SweepCommand> commands);

    /// Prints the names of the commands and of the faults.
    void List() const;
    /// Prints a line for each command and fault, and what was lost. Returns the exit code of the program: 1
    /// if a run has lost anything.
    int Run();

private:
    /// What a command may leave.
    struct Expected {
        std::string before;
        std::string between; ///< after its first step; empty if there is only one
        std::string after;
    };
    /// What one run left.
    struct Outcome {
        std::string error; ///< empty when the command succeeded
        std::string laterError; ///< of an edit when nothing failed any more
        int laterEdits = 0; ///< how many of these are stored
        std::string state;
    };
    struct Counts {
        int runs = 0;
        int survivors = 0;
    };

    void SweepCommandThrough(const SweepCommand& command);
    Counts SweepWith(const SweepCommand& command, const Expected& expected, IFault& fault);
    Expected RunWithoutFaults(const SweepCommand& command);
    Outcome RunOnce(const CommandPreparation& prepare, IFault* fault, int number);
    std::string LaterErrorOf(const PreparedCommand& prepared) const;
    static std::string WhatIsLost(const Outcome& outcome, const Expected& expected, bool hasFailed);

    SweepOptions m_options;
    std::vector<SweepCommand> m_commands;
    FailingFiles& m_files;
    HostFault* m_host = nullptr; // owned by m_faults
    std::vector<std::unique_ptr<IFault>> m_faults;
    SweepFolder m_folder;
    Counts m_total;
    int m_unswept = 0; // commands in which nothing has ever failed
};

} // namespace Orvane::Testing
