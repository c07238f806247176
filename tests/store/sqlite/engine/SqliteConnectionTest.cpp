// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/SqliteConnection.h"

#include "store/sqlite/StoreTest.h"

#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

class Connections : public StoreTest
{
protected:
    Connections()
    {
        RawDatabase raw(m_path);
        raw.Run("CREATE TABLE Things (ID INTEGER PRIMARY KEY); CREATE TABLE Log (ID)");
        raw.Run("CREATE VIEW Seen AS SELECT ID FROM Things");
        raw.Run("CREATE TRIGGER Noted AFTER INSERT ON Things BEGIN INSERT INTO Log VALUES (NEW.ID); END");
    }

    const QString m_path = PathOf(QStringLiteral("things.db"));
};

} // namespace

TEST_F(Connections, TriggersOfAFileDoNotRun)
{
    SqliteConnection connection(m_path, SqliteConnection::Access::ReadWrite, {});
    connection.Run("INSERT INTO Things VALUES (1)");
    EXPECT_EQ(connection.Number("SELECT count(*) FROM Log"), 0);
}

TEST_F(Connections, TemporaryTriggersRun)
{
    SqliteConnection connection(m_path, SqliteConnection::Access::ReadWrite, {});
    connection.Run("CREATE TEMP TRIGGER Refuse BEFORE INSERT ON Things BEGIN SELECT RAISE(ABORT, 'no'); END");
    EXPECT_NE(ErrorOf([&] { connection.Run("INSERT INTO Things VALUES (1)"); }), 0);
}

TEST_F(Connections, ViewsOfAFileAreNotRead)
{
    SqliteConnection connection(m_path, SqliteConnection::Access::ReadWrite, {});
    EXPECT_NE(ErrorOf([&] { connection.Run("SELECT * FROM Seen"); }), 0);
}

TEST_F(Connections, PagesAreCheckedAsTheyAreRead)
{
    SqliteConnection connection(m_path, SqliteConnection::Access::ReadWrite, {});
    EXPECT_EQ(connection.Number("PRAGMA cell_size_check"), 1);
}

TEST_F(Connections, StatementsAreLimited)
{
    const SqliteConnection connection(m_path, SqliteConnection::Access::ReadWrite, {});
    for (const int limit :
         {SQLITE_LIMIT_SQL_LENGTH, SQLITE_LIMIT_COLUMN, SQLITE_LIMIT_EXPR_DEPTH, SQLITE_LIMIT_COMPOUND_SELECT,
          SQLITE_LIMIT_VDBE_OP, SQLITE_LIMIT_ATTACHED, SQLITE_LIMIT_VARIABLE_NUMBER,
          SQLITE_LIMIT_TRIGGER_DEPTH}) {
        const int most = sqlite3_limit(connection.Handle(), limit, -1);
        EXPECT_GT(most, 0) << limit;
        EXPECT_LE(most, 1'000'000) << limit;
    }
}

} // namespace Orvane::Testing
