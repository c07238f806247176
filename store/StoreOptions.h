// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace Orvane {

class ILayerStore;

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
    /// The path that errors name, for a file that stands for another one; empty for the file's own.
    QString shownPath = {};
};

/// What happens to a file that exists where a new one is to be made.
enum class IfExists {
    Refuse, ///< it stays, and making the new one raises DatabaseFailure
    Replace, ///< it is replaced, unless it is open anywhere
};

/// Puts the first content into a new store, and closes the store by destroying it. Its Path() is not yet the
/// one where it will be found. If this raises, no new store remains.
using StoreFiller = std::function<void(std::unique_ptr<ILayerStore> store)>;

} // namespace Orvane
