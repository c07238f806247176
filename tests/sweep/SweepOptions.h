// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>
#include <string>

namespace Orvane::Testing {

/// What the command line of the sweep asks for.
struct SweepOptions {
    int every = 1; ///< only each such call fails
    int from = 1; ///< the first one
    std::string filter; ///< a part of the names of commands or faults; empty for all
    bool isList = false; ///< only to list the names

    bool Takes(const std::string& name) const { return name.find(filter) != std::string::npos; }

    /// Reads "[--every K [--from N]] [--list] [NAME]"; nothing if it is not understood. Without --from the
    /// sample begins at random.
    static std::optional<SweepOptions> Read(const QStringList& arguments);
};

} // namespace Orvane::Testing
