// SPDX-License-Identifier: MIT
#include "mapkit/document/SourcePaths.h"

#include "mapkit/DataFolder.h"
#include "mapkit/data/ServerTables.h"

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
    EXPECT_EQ(SourcePaths(QString()).Store(path).path, path);
    EXPECT_EQ(SourcePaths(QString()).Find({path, {}}), path);
}

TEST_F(SourcePathsTest, AFolderWhoseNameBeginsWithDotsIsNotAbove)
{
    QDir(m_folder.Path("")).mkpath("old/maps/..data");
    Write("old/maps/..data/a.gpkg");
    EXPECT_EQ(m_kept.Store(m_folder.Path("old/maps/..data/a.gpkg")).path, "..data/a.gpkg");
}

TEST_F(SourcePathsTest, DataOfAMapInNoFolderAreFoundFromAFolderOfTheUser)
{
    const QString path = m_folder.Write("old/data/a.gpkg", "data");
    const SourcePaths::Place place = SourcePaths::InFolder(m_folder.Path("old")).Store(path);
    EXPECT_EQ(place.path, "data/a.gpkg");
    const QString elsewhere = m_folder.Write("new/data/a.gpkg", "data");
    EXPECT_EQ(SourcePaths::InFolder(m_folder.Path("new")).Find(place), elsewhere);
}

TEST_F(SourcePathsTest, WithoutAFolderARelativePathIsAMissingFileAlsoInTheWorkingDirectory)
{
    Write("new/data/a.gpkg");
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_folder.Path("new")));
    const SourcePaths none = SourcePaths::InFolder({});
    for (const SourcePaths::Place& place :
         {SourcePaths::Place{"data/a.gpkg", "data/a.gpkg"}, SourcePaths::Place{"data/a.gpkg", {}}}) {
        const QString found = none.Find(place);
        EXPECT_FALSE(QFileInfo::exists(found)) << found.toStdString();
        EXPECT_TRUE(found.endsWith("data/a.gpkg")) << found.toStdString();
        EXPECT_EQ(none.Store(found).path, "data/a.gpkg");
    }
    QDir::setCurrent(before);
    EXPECT_EQ(none.Find({"PG:dbname=town", {}}), "PG:dbname=town");
}

TEST_F(SourcePathsTest, ACopyKeepsARelativePathForThoseWhoHaveTheDataInAnotherFolder)
{
    Write("old/maps/data/a.gpkg");
    const QString path = m_folder.Path("old/maps/data/a.gpkg");
    const SourcePaths none = SourcePaths::InFolder({});
    const SourcePaths::Place onServer = none.StoreFrom(m_kept, m_kept.Store(path));
    EXPECT_EQ(onServer.path, path);
    EXPECT_EQ(onServer.relative, "data/a.gpkg");

    const SourcePaths::Place shared{"data/a.gpkg", "data/a.gpkg"};
    const SourcePaths::Place copied = none.StoreFrom(none, shared);
    EXPECT_EQ(copied.path, "data/a.gpkg");
    EXPECT_EQ(copied.relative, "data/a.gpkg");
    EXPECT_EQ(m_kept.Find(m_kept.StoreFrom(none, shared)), path);
}

TEST_F(SourcePathsTest, ATableOnAServerIsNoFileInAFolder)
{
    const SourcePaths paths = SourcePaths::InFolder(m_folder.Path("old"));
    EXPECT_EQ(paths.Store(ServerTablePath).path, ServerTablePath);
    EXPECT_EQ(paths.Find({ServerTablePath, {}}), ServerTablePath);
}

} // namespace Orvane
