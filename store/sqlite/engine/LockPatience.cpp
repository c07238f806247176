// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/LockPatience.h"

#include <algorithm>
#include <array>
#include <sqlite3.h>

namespace Orvane {

namespace {

using std::chrono::milliseconds;

// Short at first: most locks are held for the time of one write.
constexpr std::array<int, 12> Pauses = {1, 2, 5, 10, 15, 20, 25, 25, 25, 50, 50, 100}; // milliseconds

milliseconds PauseBefore(int attempt)
{
    return milliseconds(Pauses[std::min(size_t(attempt), Pauses.size() - 1)]);
}

} // namespace

void LockPatience::Attach(sqlite3* handle)
{
    sqlite3_busy_handler(
        handle,
        [](void* patience, int attempt) {
            try {
                return int(static_cast<LockPatience*>(patience)->Wait(attempt));
            } catch (...) { // an exception must not pass through SQLite's frames
                return 0;
            }
        },
        this);
}

// Adds up the pauses that it asks for, as SQLite's own waiting does.
bool LockPatience::Wait(int attempt)
{
    const milliseconds pause = std::min(PauseBefore(attempt), m_action.Left());
    if (pause <= milliseconds(0))
        return false;
    m_action.Spend(pause);
    sqlite3_sleep(int(pause.count()));
    return true;
}

} // namespace Orvane
