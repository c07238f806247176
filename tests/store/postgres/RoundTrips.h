// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/PostgresLayerDatabase.h"

#include <QEventLoop>
#include <QMetaObject>

#include <functional>

namespace Orvane::Testing {

/// How often the server is waited for during an act.
inline int RoundTripsOf(const PostgresLayerDatabase& store, const std::function<void()>& act)
{
    const quint64 before = store.RoundTrips();
    act();
    return int(store.RoundTrips() - before);
}

/// As in a program that runs: an action of the user ends when the event loop gets its turn.
inline void InEventLoop(const std::function<void()>& act)
{
    QEventLoop loop;
    const auto actAndLeave = [&] {
        act();
        loop.quit();
    };
    QMetaObject::invokeMethod(&loop, actAndLeave, Qt::QueuedConnection);
    loop.exec();
}

} // namespace Orvane::Testing
