// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace Orvane {

/// How a layer database file is opened.
enum class OpenMode {
    ReadWrite, ///< layers can be changed; an older file is upgraded to the current version
    ReadOnly, ///< the file is never written; each attempt to change a row raises DatabaseReadOnly
};

/// What a host may choose when it opens or creates a layer database.
struct StoreOptions {
    /// How long to wait for another program's lock before DatabaseLocked is raised.
    std::chrono::milliseconds busyTimeout{5000};
};

} // namespace Orvane
