// SPDX-License-Identifier: MIT
#include "mapkit/document/MapTables.h"

#include "hostkit/common/HostTables.h"
#include "hostkit/common/MapNotes.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/document/MapSettings.h"
#include "mapkit/document/MapThemes.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

// The statements of the act that make or change tables.
QStringList MadeTables(ILayerStore& store, const std::function<void()>& act)
{
    QStringList made;
    store.SetQueryListener([&](const QString& sql) {
        if (sql.startsWith("CREATE") || sql.startsWith("ALTER"))
            made << sql;
    });
    act();
    store.SetQueryListener({});
    return made;
}

// What makes tables in a map in which they are missing.
void UseAll(ILayerStore& store)
{
    LayerSchemes(store).Create("Night");
    MapThemes(store).StoreVisibleLayers("Water");
    MapNotes::Write(store, "key", "text");
    MapSettings::Prepare(store);
    HostTables::SetVersion(store, "Anything", 1);
}

} // namespace

TEST(MapTablesTest, AMapThatHasAllTablesNeedsNoOtherLater)
{
    const auto store = LayerStores::CreateInMemory();
    EXPECT_FALSE(MadeTables(*store, [&] { MapTables::PrepareAll(*store); }).isEmpty());
    EXPECT_EQ(MadeTables(*store, [&] { UseAll(*store); }), QStringList());
}

TEST(MapTablesTest, AMapInAFileMakesItsTablesWhenTheyAreNeeded)
{
    const auto map = MapDocument::Untitled();
    EXPECT_FALSE(MadeTables(map->Database(), [&] { UseAll(map->Database()); }).isEmpty());
}

TEST(MapTablesTest, PreparedTablesHoldNothing)
{
    const auto store = LayerStores::CreateInMemory();
    MapTables::PrepareAll(*store);
    MapTables::PrepareAll(*store);
    EXPECT_EQ(LayerSchemes(*store).AtOpening(), QString());
    EXPECT_TRUE(MapThemes(*store).All().empty());
    EXPECT_TRUE(MapNotes::ReadAll(*store).isEmpty());
}

} // namespace Orvane::Testing
