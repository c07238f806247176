// SPDX-License-Identifier: MIT
#include "store/shared/WorkWatch.h"

#include <utility>

namespace Orvane {

void WorkWatch::SetWatcher(StoreWatcher watcher)
{
    m_watcher = std::move(watcher);
    m_cancelled = false;
    m_share = UnknownShare;
}

bool WorkWatch::Ask() noexcept
{
    if (!m_watcher || m_cancelled || m_asking)
        return !m_cancelled;
    m_asking = true;
    try {
        m_cancelled = !m_watcher(m_share);
    } catch (...) { // an exception must not pass through the frames of SQLite or libpq
    }
    m_asking = false;
    return !m_cancelled;
}

} // namespace Orvane
