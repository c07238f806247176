// SPDX-License-Identifier: MIT
#include "sweep/SqliteMemoryFault.h"

#include <sqlite3.h>
#include <stdexcept>

namespace Orvane::Testing {

namespace {

sqlite3_mem_methods RealMemory; // filled before SQLite allocates anything
thread_local AllocationCounter* ArmedInSqlite = nullptr;

bool FailsInSqlite(int bytes)
{
    return ArmedInSqlite && ArmedInSqlite->Fails(std::size_t(bytes));
}

void* Allocate(int bytes)
{
    return FailsInSqlite(bytes) ? nullptr : RealMemory.xMalloc(bytes);
}

void* Reallocate(void* memory, int bytes)
{
    return FailsInSqlite(bytes) ? nullptr : RealMemory.xRealloc(memory, bytes);
}

void RequireOk(int result)
{
    if (result != SQLITE_OK)
        throw std::logic_error("SQLite was used before its allocator was replaced.");
}

bool ReplaceAllocator()
{
    RequireOk(sqlite3_config(SQLITE_CONFIG_GETMALLOC, &RealMemory));
    sqlite3_mem_methods failing = RealMemory;
    failing.xMalloc = Allocate;
    failing.xRealloc = Reallocate;
    RequireOk(sqlite3_config(SQLITE_CONFIG_MALLOC, &failing));
    return true;
}

} // namespace

SqliteMemoryFault::SqliteMemoryFault(Extent extent) : m_counter(extent)
{
    Install();
}

SqliteMemoryFault::~SqliteMemoryFault()
{
    SqliteMemoryFault::Disarm();
}

void SqliteMemoryFault::Install()
{
    static const bool done = ReplaceAllocator();
    static_cast<void>(done);
}

std::string SqliteMemoryFault::Name() const
{
    return m_counter.Lasts() ? "SqliteMemoryFromThenOn" : "SqliteMemory";
}

void SqliteMemoryFault::Arm(int number)
{
    m_counter.Start(number);
    ArmedInSqlite = &m_counter;
}

void SqliteMemoryFault::Disarm()
{
    if (ArmedInSqlite == &m_counter)
        ArmedInSqlite = nullptr;
}

std::string SqliteMemoryFault::FirstFailure() const
{
    return HasFailed() ? "allocation in SQLite " + m_counter.FirstFailure() : std::string();
}

} // namespace Orvane::Testing
