// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/LockPatience.h"

#include <QThread>

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
    const milliseconds pause = std::min(PauseBefore(attempt), m_limit - m_waited);
    if (pause <= milliseconds(0))
        return false;
    ExpectEndOfAction();
    m_waited += pause;
    sqlite3_sleep(int(pause.count()));
    return true;
}

void LockPatience::ExpectEndOfAction()
{
    if (m_expectsEnd)
        return;
    const auto endAction = [this] {
        m_expectsEnd = false;
        m_waited = milliseconds(0);
    };
    QMetaObject::invokeMethod(&m_loop, endAction, Qt::QueuedConnection);
    m_expectsEnd = true;
}

void LockPatience::NoteSuccess()
{
    if (m_waited > milliseconds(0) && QThread::currentThread()->loopLevel() == 0)
        m_waited = milliseconds(0);
}

} // namespace Orvane
