// SPDX-License-Identifier: MIT
#include "mapkit/files/ReadingBound.h"

#include <sqlite3.h>

namespace Orvane {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int StepsBetweenQuestions = 10000; // well below a millisecond

thread_local ReadingBound* innermost = nullptr;

int MustEnd(void*)
{
    return ReadingBound::IsOverHere() ? 1 : 0;
}

// Called by SQLite for each new connection.
int Attend(sqlite3* connection, const char**, const sqlite3_api_routines*)
{
    if (innermost)
        sqlite3_progress_handler(connection, StepsBetweenQuestions, MustEnd, nullptr);
    return SQLITE_OK;
}

} // namespace

ReadingBound::ReadingBound(std::chrono::milliseconds wait)
    : m_outer(innermost), m_wait(wait), m_end(Clock::now() + wait)
{
    innermost = this;
    ReachSqlite();
}

ReadingBound::ReadingBound(const std::atomic<bool>& cancelled)
    : m_outer(innermost), m_cancelled(&cancelled), m_wait(0)
{
    innermost = this;
    ReachSqlite();
}

ReadingBound::~ReadingBound()
{
    innermost = m_outer;
}

void ReadingBound::Renew()
{
    m_end = Clock::now() + m_wait;
}

bool ReadingBound::IsOver()
{
    m_isOver = m_isOver || (m_cancelled ? m_cancelled->load() : Clock::now() >= m_end)
        || (m_outer && m_outer->IsOver());
    return m_isOver;
}

bool ReadingBound::IsCancelled() const
{
    return (m_cancelled && *m_cancelled) || (m_outer && m_outer->IsCancelled());
}

bool ReadingBound::IsOverHere()
{
    return innermost && innermost->IsOver();
}

bool ReadingBound::IsCancelledHere()
{
    return innermost && innermost->IsCancelled();
}

void ReadingBound::ReachSqlite()
{
    if (innermost)
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(Attend)); // as SQLite declares it
}

} // namespace Orvane
