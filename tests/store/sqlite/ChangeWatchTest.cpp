// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/any/RecordedRows.h"
#include "store/sqlite/StoreTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

/// What a recorder sees of statements that only SQLite has.
class RecorderOfFiles : public StoreTest
{
protected:
    RecorderOfFiles() { AddLayers(*m_database, 3); }

    void Run(const char* sql) { m_database->Execute(QString::fromUtf8(sql)); }

    const std::unique_ptr<SqliteLayerDatabase> m_database
        = SqliteLayerDatabase::Create(PathOf(QStringLiteral("map.ovl")));
};

} // namespace

TEST_F(RecorderOfFiles, SeesARowThatReplacesAnother)
{
    const auto recorder = m_database->RecordChanges();
    Run("INSERT OR REPLACE INTO Layers (LayerID, Name) VALUES (3, 'Other')");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 3"));
    EXPECT_THAT(ColumnsOf(recorder->Changes()), ElementsAre("Name"));
}

TEST_F(RecorderOfFiles, SeesTablesThatAreMadeAndWidenedMeanwhile)
{
    const auto recorder = m_database->RecordChanges();
    Run("CREATE TABLE Notes (A INTEGER, B INTEGER, Text TEXT, PRIMARY KEY (B, A)) WITHOUT ROWID");
    Run("INSERT INTO Notes VALUES (1, 2, 'x')");
    Run("ALTER TABLE Notes ADD COLUMN More");
    Run("INSERT INTO Notes VALUES (3, 4, 'y', 'z')");
    Run("CREATE TABLE Loose (A)");
    Run("INSERT INTO Loose VALUES (1)");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Notes inserted 2", "Notes inserted 4"));
}

} // namespace Orvane::Testing
