// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/HostFault.h"
#include "sweep/SweepFolder.h"

#include <functional>
#include <string>
#include <vector>

namespace Orvane {
class ILayerStore;
}

namespace Orvane::Testing {

/// What the commands work with.
struct SweepBench {
    const SweepFolder& folder;
    HostFault& host; ///< gets the client of a command that has one
};

/// A command that is ready to run. What it has opened is closed with it.
struct PreparedCommand {
    /// Runs the command; raises what the user would be told.
    std::function<void()> act;
    /// The map that is open, owned by act; nullptr for none.
    ILayerStore* store = nullptr;
};

using CommandPreparation = std::function<PreparedCommand(const SweepBench&)>;

/// A command of the sweep.
struct SweepCommand {
    std::string name;
    CommandPreparation prepare;
    /// For a command of two steps that are not one transaction: the first step by itself. Empty for all
    /// others.
    CommandPreparation firstStep = {};
};

std::vector<SweepCommand> StoreCommands();
std::vector<SweepCommand> HostKitCommands();
std::vector<SweepCommand> DialogCommands();
std::vector<SweepCommand> MapCommands();
/// What is written without SQLite.
std::vector<SweepCommand> OutputCommands();

/// All of them.
std::vector<SweepCommand> SweepCommands();

} // namespace Orvane::Testing
