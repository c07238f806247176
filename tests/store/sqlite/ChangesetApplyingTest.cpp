// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/sqlite/StoreTest.h"

namespace Orvane::Testing {

namespace {

/// Changes that were recorded in a file, and are applied to it.
class ChangesOfFiles : public StoreTest
{
};

} // namespace

TEST_F(ChangesOfFiles, BringBackValuesThatNoColumnTypeHolds)
{
    const auto database = SqliteLayerDatabase::Create(PathOf(QStringLiteral("map.ovl")));
    const auto run = [&](const char* sql) { database->Execute(QString::fromUtf8(sql)); };
    run("CREATE TABLE Notes (ID INTEGER PRIMARY KEY, A, B, C, D, E)");
    run("INSERT INTO Notes VALUES (1, 9007199254740993, 0.1, x'00ff00', NULL, 'Text')");
    const auto recorder = database->RecordChanges();
    run("UPDATE Notes SET A = 1, B = 2, C = 3, D = 4, E = 'TEXT'");
    ASSERT_TRUE(database->Apply(recorder->Changes().Inverted()));
    RawDatabase other(database->Path());
    EXPECT_EQ(
        other.Text("SELECT A || ' ' || B || ' ' || hex(C) || ' ' || coalesce(D, 'none') || E FROM Notes"),
        "9007199254740993 0.1 00FF00 noneText");
}

} // namespace Orvane::Testing
