// SPDX-License-Identifier: MIT
#include "shell/window/RecentMaps.h"

#include "mapkit/DataFolder.h"

#include <QSettings>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class RecentMapsTest : public testing::Test
{
protected:
    void SetUp() override { QSettings().clear(); }

    QString Map(int number) { return m_folder.Write(QString::number(number) + ".orvane", "map"); }

    DataFolder m_folder;
};

} // namespace

TEST_F(RecentMapsTest, TheLastOneComesFirst)
{
    RecentMaps::Add(Map(1));
    RecentMaps::Add(Map(2));
    EXPECT_EQ(RecentMaps::All(), QStringList({Map(2), Map(1)}));
}

TEST_F(RecentMapsTest, AMapThatIsOpenedAgainMovesToTheFront)
{
    for (const int number : {1, 2, 1})
        RecentMaps::Add(Map(number));
    EXPECT_EQ(RecentMaps::All(), QStringList({Map(1), Map(2)}));
}

TEST_F(RecentMapsTest, OnlyTheLatestFewAreKept)
{
    for (int number = 1; number <= RecentMaps::Most + 3; ++number)
        RecentMaps::Add(Map(number));
    EXPECT_EQ(RecentMaps::All().size(), RecentMaps::Most);
    EXPECT_EQ(RecentMaps::All().first(), Map(RecentMaps::Most + 3));
}

TEST_F(RecentMapsTest, TheLatestIsOneThatIsStillThere)
{
    EXPECT_EQ(RecentMaps::Latest(), "");
    RecentMaps::Add(Map(1));
    RecentMaps::Add(Map(2));
    QFile::remove(m_folder.Path("2.orvane"));
    EXPECT_EQ(RecentMaps::Latest(), m_folder.Path("1.orvane"));
    EXPECT_EQ(RecentMaps::All().size(), 2);
}

TEST_F(RecentMapsTest, AMapOnAServerIsKeptWithoutALookForAFile)
{
    const QString town = "postgresql:///?service=team&schema=Town";
    RecentMaps::Add(Map(1));
    RecentMaps::Add(town);
    EXPECT_TRUE(RecentMaps::MayExist(town));
    EXPECT_FALSE(RecentMaps::MayExist(m_folder.Path("2.orvane")));
    EXPECT_EQ(RecentMaps::Latest(), town);
}

TEST_F(RecentMapsTest, AMapCanBeTakenOffTheList)
{
    const QString path = Map(1);
    RecentMaps::Add(path);
    RecentMaps::Remove(path);
    EXPECT_TRUE(RecentMaps::All().isEmpty());
}

} // namespace Orvane
