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
    /// How long to wait for other programs' locks before DatabaseLocked is raised. All waits during one
    /// action of the user, that is, until the program returns to its event loop, count together. Where no
    /// event loop is running, the waits count together until a write succeeds.
    std::chrono::milliseconds busyTimeout{5000};
};

} // namespace Orvane
