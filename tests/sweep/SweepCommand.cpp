// SPDX-License-Identifier: MIT
#include "sweep/SweepCommand.h"

namespace Orvane::Testing {

std::vector<SweepCommand> SweepCommands()
{
    std::vector<SweepCommand> all;
    for (const auto list : {StoreCommands, HostKitCommands, DialogCommands, MapCommands, OutputCommands}) {
        const std::vector<SweepCommand> some = list();
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

} // namespace Orvane::Testing
