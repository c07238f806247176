// SPDX-License-Identifier: MIT
#include "mapkit/document/MapSettings.h"

#include "store/sqlite/SqliteLayerDatabase.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

TEST(MapSettings, AreReadAsTheyWereWritten)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    MapSettings::Prepare(*database);
    MapSettings::Write(*database, QStringLiteral("System"), QStringLiteral("EPSG:25832"));
    MapSettings::Write(*database, QStringLiteral("System"), QStringLiteral("EPSG:32632"));
    EXPECT_EQ(MapSettings::Read(*database, QStringLiteral("System")), QStringLiteral("EPSG:32632"));
}

TEST(MapSettings, OneThatWasNeverWrittenIsEmpty)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    MapSettings::Prepare(*database);
    EXPECT_TRUE(MapSettings::Read(*database, QStringLiteral("System")).isEmpty());
}

TEST(MapSettings, APlainLayerDatabaseHasNone)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    EXPECT_TRUE(MapSettings::Read(*database, QStringLiteral("System")).isEmpty());
}

TEST(MapSettings, PreparingAgainKeepsWhatIsThere)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    MapSettings::Prepare(*database);
    MapSettings::Write(*database, QStringLiteral("System"), QString());
    MapSettings::Write(*database, QStringLiteral("Backdrop"), QStringLiteral("relief.tif"));
    MapSettings::Prepare(*database);
    EXPECT_EQ(MapSettings::Read(*database, QStringLiteral("Backdrop")), QStringLiteral("relief.tif"));
}

} // namespace
} // namespace Orvane::Testing
