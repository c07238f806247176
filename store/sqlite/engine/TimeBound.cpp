// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/TimeBound.h"

#include "store/sqlite/engine/SqliteConnection.h"

namespace Orvane {

TimeBound::TimeBound(SqliteConnection& connection, std::chrono::milliseconds time) : m_connection(connection)
{
    m_connection.Watch().SetEnd(std::chrono::steady_clock::now() + time);
}

bool TimeBound::HasEnded() const
{
    return m_connection.Watch().IsOver();
}

TimeBound::~TimeBound()
{
    m_connection.Watch().SetEnd(std::nullopt);
}

} // namespace Orvane
