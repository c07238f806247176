// SPDX-License-Identifier: MIT
#include "store/failing_files/DiskModel.h"

#include <gtest/gtest.h>
#include <set>

namespace Orvane::Testing {

namespace {

using Files = std::map<std::string, QByteArray>;

DiskModel WithWrites()
{
    DiskModel disk;
    disk.AddOld("map", "old");
    disk.Write("map", 0, "new");
    disk.Write("map", 3, "er");
    return disk;
}

} // namespace

TEST(DiskModelTests, WhatWasSyncedIsThereWhateverIsLost)
{
    DiskModel disk = WithWrites();
    disk.Sync("map");
    EXPECT_EQ(disk.AfterPowerCut(Loss::Everything, 1), (Files{{"map", "newer"}}));
}

TEST(DiskModelTests, WhatWasNotSyncedMayBeLostOrStored)
{
    EXPECT_EQ(WithWrites().AfterPowerCut(Loss::Everything, 1), (Files{{"map", "old"}}));
    EXPECT_EQ(WithWrites().AfterPowerCut(Loss::Nothing, 1), (Files{{"map", "newer"}}));
}

TEST(DiskModelTests, ALaterWriteMayBeStoredWithoutAnEarlierOne)
{
    std::set<QByteArray> contents;
    for (unsigned seed = 0; seed < 100; ++seed)
        contents.insert(WithWrites().AfterPowerCut(Loss::SomeWrites, seed).at("map"));
    EXPECT_EQ(contents, (std::set<QByteArray>{"old", "older", "new", "newer"}));
}

TEST(DiskModelTests, AWriteIsTornAtSectorsOnly)
{
    std::set<QByteArray> contents;
    for (unsigned seed = 0; seed < 100; ++seed) {
        DiskModel disk;
        disk.AddOld("map", QByteArray(1024, 'o'));
        disk.Write("map", 256, QByteArray(512, 'n'));
        contents.insert(disk.AfterPowerCut(Loss::TornWrites, seed).at("map"));
    }
    const QByteArray o(256, 'o');
    const QByteArray n(256, 'n');
    EXPECT_EQ(contents, (std::set<QByteArray>{o + o + o + o, o + n + o + o, o + o + n + o, o + n + n + o}));
}

TEST(DiskModelTests, ANameIsCertainOnceTheFolderIsSynced)
{
    DiskModel disk;
    disk.AddOld("map", "old");
    disk.Create("map.part");
    disk.Write("map.part", 0, "new");
    disk.Sync("map.part");
    disk.Rename("map.part", "map");
    DiskModel synced = disk;
    synced.SyncFolder();
    EXPECT_EQ(disk.AfterPowerCut(Loss::Everything, 1), (Files{{"map", "old"}}));
    EXPECT_EQ(synced.AfterPowerCut(Loss::Everything, 1), (Files{{"map", "new"}}));
}

TEST(DiskModelTests, AFileThatWasRenamedUnsyncedMayBeEmpty)
{
    DiskModel disk;
    disk.AddOld("map", "old");
    disk.Create("map.part");
    disk.Write("map.part", 0, "new");
    disk.Rename("map.part", "map");
    disk.SyncFolder();
    EXPECT_EQ(disk.AfterPowerCut(Loss::Everything, 1), (Files{{"map", QByteArray()}}));
}

} // namespace Orvane::Testing
