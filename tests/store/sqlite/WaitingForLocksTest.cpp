// SPDX-License-Identifier: MIT
#include "store/sqlite/StoreTest.h"

namespace Orvane::Testing {

namespace {

/// A layer database file that another program has locked.
class LocksOfFiles : public StoreTest
{
};

} // namespace

TEST_F(LocksOfFiles, AnExclusiveLockKeepsTheFileFromOpening)
{
    const QString path = MadeFile();
    RawDatabase exclusive(path);
    exclusive.Run("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; UPDATE Layers SET Code = 1");
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly})
        EXPECT_EQ(
            ErrorOf([&] { SqliteLayerDatabase::Open(path, mode, Impatient()); }),
            int(ErrorNumber::DatabaseLocked));
}

} // namespace Orvane::Testing
