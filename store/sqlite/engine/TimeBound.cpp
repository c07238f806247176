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
    auto* self = static_cast<TimeBound*>(bound);
    self->m_hasEnded = self->m_hasEnded || std::chrono::steady_clock::now() >= self->m_end;
    return self->m_hasEnded ? 1 : 0;
}

} // namespace Orvane
