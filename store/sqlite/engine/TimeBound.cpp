// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/TimeBound.h"

#include "store/sqlite/engine/SqliteConnection.h"

#include <sqlite3.h>

namespace Orvane {

namespace {

constexpr int StepsBetweenLooks = 1000; // a look at the clock takes as long as a few steps

} // namespace

TimeBound::TimeBound(SqliteConnection& connection, std::chrono::milliseconds time)
    : m_connection(connection), m_end(std::chrono::steady_clock::now() + time)
{
    sqlite3_progress_handler(connection.Handle(), StepsBetweenLooks, IsOver, this);
}

TimeBound::~TimeBound()
{
    sqlite3_progress_handler(m_connection.Handle(), 0, nullptr, nullptr);
}

int TimeBound::IsOver(void* bound)
{
    return std::chrono::steady_clock::now() >= static_cast<TimeBound*>(bound)->m_end ? 1 : 0;
}

} // namespace Orvane
