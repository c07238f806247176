// SPDX-License-Identifier: MIT
#include "memory/StoreWithoutMemory.h"

namespace Orvane::Testing {

namespace {

/// Commands on whole files. SQLite makes thousands of allocations for each, the store itself few.
class FilesWithoutMemory : public StoreWithoutMemory
{
protected:
    FilesWithoutMemory()
    {
        const bool isInSqlite
            = GetParam() == MissingMemory::OnceInSqlite || GetParam() == MissingMemory::InSqliteFromThenOn;
        m_stride = isInSqlite ? 41 : 1;
    }
};

} // namespace

TEST_P(FilesWithoutMemory, AMapIsOpenedOrRefusedForLackOfMemory)
{
    SweepPlain([this]() -> Act {
        m_database.reset();
        return [this] { m_database = SqliteLayerDatabase::Open(m_run); };
    });
}

TEST_P(FilesWithoutMemory, ACopyIsWholeOrNotThere)
{
    Sweep([this](SqliteLayerDatabase& database) -> Act { return [&] { database.CopyToFile(m_copy); }; });
}

TEST_P(FilesWithoutMemory, ACopyReplacesAMapWholeOrNotAtAll)
{
    Sweep([this](SqliteLayerDatabase& database) -> Act {
        database.CopyToFile(m_copy);
        SetCode(database, 1, 5);
        return [&] { database.CopyToFile(m_copy, IfExists::Replace); };
    });
}

TEST_P(FilesWithoutMemory, ANewMapIsMadeWholeOrNotAtAll)
{
    SweepPlain([this]() -> Act { return [this] { SqliteLayerDatabase::Create(m_copy); }; });
}

TEST_P(FilesWithoutMemory, AMapThatIsOpenIsNotReplaced)
{
    m_stride = 1; // few allocations, and each could make it look closed
    m_afterwards = [this] { m_other.reset(); };
    Sweep([this](SqliteLayerDatabase& database) -> Act {
        database.CopyToFile(m_copy);
        m_other = SqliteLayerDatabase::Open(m_copy);
        return [&] {
            try {
                database.CopyToFile(m_copy, IfExists::Replace);
                m_read = "replaced";
            } catch (const RunTimeError& error) {
                if (error.Number() != int(ErrorNumber::DatabaseLocked))
                    throw;
            }
        };
    });
}

INSTANTIATE_TEST_SUITE_P(WhateverFails, FilesWithoutMemory, AllKindsOfMissingMemory(), NameOfKind);

} // namespace Orvane::Testing
