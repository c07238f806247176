// SPDX-License-Identifier: MIT
#include "mapkit/document/SourcePaths.h"

#include "mapkit/DataFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class SourcePathsTest : public testing::Test
{
protected:
    SourcePathsTest()
    {
        for (const char* folder : {"old/maps", "old/data", "old/maps/data", "new/maps", "new/data"})
            QDir(m_folder.Path("")).mkpath(folder);
    }

    // Where the stored path of data is found when the map file is at another path.
    QString Found(const QString& data, const QString& map) const
    {
        return SourcePaths(m_folder.Path(map)).Find(m_kept.Store(m_folder.Path(data)));
    }
    void Write(const QString& name) const { m_folder.Write(name, "data"); }
    void Move(const QString& from, const QString& to) const
    {
        ASSERT_TRUE(QFile::rename(m_folder.Path(from), m_folder.Path(to)));
    }

    DataFolder m_folder;
    const SourcePaths m_kept{m_folder.Path("old/maps/map.orvane")};
};

} // namespace

TEST_F(SourcePathsTest, DataThatStayedAreWhereTheyWere)
{
    Write("old/data/a.gpkg");
    EXPECT_EQ(Found("old/data/a.gpkg", "old/maps/map.orvane"), m_folder.Path("old/data/a.gpkg"));
}

TEST_F(SourcePathsTest, AMapThatWasMovedAloneFindsItsData)
{
    Write("old/data/a.gpkg");
    EXPECT_EQ(Found("old/data/a.gpkg", "new/maps/map.orvane"), m_folder.Path("old/data/a.gpkg"));
}

TEST_F(SourcePathsTest, DataBesideTheMapsFolderMoveAlong)
{
    Write("old/data/a.gpkg");
    const SourcePaths::Place place = m_kept.Store(m_folder.Path("old/data/a.gpkg"));
    Move("old/data/a.gpkg", "new/data/a.gpkg");
    EXPECT_EQ(
        SourcePaths(m_folder.Path("new/maps/map.orvane")).Find(place), m_folder.Path("new/data/a.gpkg"));
}

TEST_F(SourcePathsTest, ACopyOfMapAndDataShowsTheCopiedData)
{
    Write("old/data/a.gpkg");
    Write("new/data/a.gpkg");
    EXPECT_EQ(Found("old/data/a.gpkg", "new/maps/map.orvane"), m_folder.Path("new/data/a.gpkg"));
}

TEST_F(SourcePathsTest, DataThatWereMovedBesideTheMapAreFound)
{
    Write("old/data/a.gpkg");
    const SourcePaths::Place place = m_kept.Store(m_folder.Path("old/data/a.gpkg"));
    Move("old/data/a.gpkg", "old/maps/a.gpkg");
    EXPECT_EQ(
        SourcePaths(m_folder.Path("old/maps/map.orvane")).Find(place), m_folder.Path("old/maps/a.gpkg"));
}

TEST_F(SourcePathsTest, MissingDataAreNamedWhereTheyShouldBe)
{
    Write("old/maps/data/a.gpkg");
    const SourcePaths::Place place = m_kept.Store(m_folder.Path("old/maps/data/a.gpkg"));
    ASSERT_TRUE(QFile::remove(m_folder.Path("old/maps/data/a.gpkg")));
    EXPECT_EQ(
        SourcePaths(m_folder.Path("new/maps/map.orvane")).Find(place), m_folder.Path("new/maps/data/a.gpkg"));
}

TEST_F(SourcePathsTest, DataWithinTheMapsFolderKeepNoAbsolutePath)
{
    Write("old/maps/data/a.gpkg");
    EXPECT_EQ(m_kept.Store(m_folder.Path("old/maps/data/a.gpkg")).path, "data/a.gpkg");
}

TEST_F(SourcePathsTest, AMapWithoutAFileKeepsPathsAsTheyAre)
{
    Write("old/data/a.gpkg");
    const QString path = m_folder.Path("old/data/a.gpkg");
    EXPECT_EQ(SourcePaths({}).Store(path).path, path);
    EXPECT_EQ(SourcePaths({}).Find({path, {}}), path);
}

TEST_F(SourcePathsTest, AFolderWhoseNameBeginsWithDotsIsNotAbove)
{
    QDir(m_folder.Path("")).mkpath("old/maps/..data");
    Write("old/maps/..data/a.gpkg");
    EXPECT_EQ(m_kept.Store(m_folder.Path("old/maps/..data/a.gpkg")).path, "..data/a.gpkg");
}

} // namespace Orvane
