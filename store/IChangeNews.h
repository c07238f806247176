// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStringList>
#include <QtGlobal>

#include <functional>

namespace Orvane {

/// What other programs have changed in a layer store.
struct ForeignChange {
    QSet<qint32> layerIDs; ///< of the rows of Layers that were changed, added or deleted
    bool all = false; ///< anything may have changed, in any table
};

/// What others do with a layer store that this program has open, told as it happens. All calls are made on
/// the thread of the store, which runs an event loop.
class IChangeNews
{
public:
    /// How the store can be reached.
    enum class Link {
        Present, ///< it can
        Lost, ///< it cannot; it is tried again after a while, longer each time
        Trying, ///< it cannot; it is tried at this moment
    };

    /// Who is told. The functions are called from the event loop, never from within a call of the store, and
    /// may use the store. They raise nothing.
    struct Listener {
        /// Rows were changed. What comes within a moment is told together; what others did while the store
        /// could not be reached is told when it can be reached again.
        std::function<void(const ForeignChange& change)> changed;
        /// Users or State return something else.
        std::function<void()> stateChanged;
    };

    virtual ~IChangeNews() = default;
    IChangeNews(const IChangeNews&) = delete;
    IChangeNews& operator=(const IChangeNews&) = delete;

    /// Tells what happens from now on. Raises database errors.
    virtual void SetListener(Listener listener) = 0;
    /// The roles of the others who have the store open, each once.
    virtual QStringList Users() const = 0;
    virtual Link State() const = 0;
    /// Tries at once to reach the store again. May ask the user for a password. Raises nothing.
    virtual void TryAgain() = 0;

protected:
    IChangeNews() = default;
};

} // namespace Orvane
