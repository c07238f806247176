// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>

namespace Orvane {

class ILayerStore;
class IServerLogin;

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
    /// How long to wait for a server to take the connection.
    std::chrono::milliseconds connectTimeout{10000};
    /// How long a server may be silent in the middle of its work before the connection counts as lost. While
    /// a watcher can cancel the work, the server may take as long as it likes.
    std::chrono::milliseconds answerTimeout{15000};
    /// How many bytes a server may answer to one statement before the connection is given up: such an answer
    /// would take that much memory, and perhaps has no end.
    qint64 longestAnswer = qint64(1) << 30;
    /// Asks for the passwords that a server wants and nobody has stored; nullptr for nobody. Not owned,
    /// outlives the store.
    IServerLogin* login = nullptr;
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
