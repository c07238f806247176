// SPDX-License-Identifier: MIT
#include "shell/map/SourceFollower.h"

#include "mapkit/DataFolder.h"
#include "mapkit/ZipFile.h"
#include "mapkit/document/MapDocument.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class SourceFollowerTest : public testing::Test
{
protected:
    SourceFollowerTest()
    {
        QDir(m_folder.Path("")).mkpath("data");
        AddLayer("a", m_folder.WriteSquare("data/a.geojson"));
        AddLayer("b", m_folder.WriteSquare("data/b.geojson"));
        QObject::connect(&m_follower, &SourceFollower::Read, [this](const SourceContents& contents) {
            m_read.push_back(contents);
        });
        m_follower.Follow();
    }

    void AddLayer(const QString& name, const QString& path)
    {
        NewLayer layer;
        layer.name = layer.ogrLayer = name;
        layer.path = path;
        m_document->AddLayer(layer);
    }

    // What is read next.
    SourceContents Next()
    {
        const size_t before = m_read.size();
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_read.size() > before; }));
        return m_read.empty() ? SourceContents() : m_read.back();
    }

    DataFolder m_folder;
    QWidget m_window;
    std::unique_ptr<MapDocument> m_document = MapDocument::Create(m_folder.Path("map.orvane"));
    SourceFollower m_follower{*m_document, m_window};
    std::vector<SourceContents> m_read;
};

} // namespace

TEST_F(SourceFollowerTest, AMapOnAServerIsNotMissedAsAFile)
{
    MapDocument::Create(m_folder.Path("copy.orvane"));
    const auto document = MapDocument::OpenCopy(m_folder.Path("copy.orvane"), "postgresql:///?schema=Town");
    NewLayer layer;
    layer.path = m_folder.Path("data/a.geojson");
    document->AddLayer(layer);
    SourceFollower follower(*document, m_window);
    follower.Follow();
    const QSignalSpy read(&follower, &SourceFollower::Read);
    const QSignalSpy gone(&follower, &SourceFollower::MapFileGone);
    QFile::remove(layer.path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return read.count() == 1; }));
    EXPECT_EQ(gone.count(), 0);
}

TEST_F(SourceFollowerTest, AFileThatGoesFailsAndComesBack)
{
    ASSERT_TRUE(QFile::remove(m_folder.Path("data/a.geojson")));
    SourceContents contents = Next();
    EXPECT_TRUE(contents.failures.contains(1));
    EXPECT_FALSE(contents.failures.contains(2));
    EXPECT_TRUE(contents.features.empty());
    m_folder.WriteSquare("data/a.geojson");
    contents = Next();
    EXPECT_TRUE(contents.features.contains(1));
    EXPECT_EQ(contents.features.size(), 1u);
}

TEST_F(SourceFollowerTest, AFileThatChangesIsReadAgain)
{
    m_folder.WriteSquare("data/b.geojson", 100, 40);
    const SourceContents contents = Next();
    ASSERT_TRUE(contents.features.contains(2));
    EXPECT_EQ(contents.features.at(2)->Bounds().minX, 100);
}

TEST_F(SourceFollowerTest, AnArchiveThatChangesIsReadAgain)
{
    const QString path = m_folder.Path("data/c.zip");
    WriteZip(path, {{"c.geojson", R"({"type":"Point","coordinates":[1,2]})"}});
    AddLayer("c", path);
    m_follower.Follow();
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_TRUE(Next().failures.contains(3));
    WriteZip(path, {{"c.geojson", R"({"type":"Point","coordinates":[5,6]})"}});
    const SourceContents contents = Next();
    ASSERT_TRUE(contents.features.contains(3));
    EXPECT_EQ(contents.features.at(3)->Bounds().minX, 5);
}

TEST_F(SourceFollowerTest, AFolderThatGoesAndComesBackIsNoticed)
{
    ASSERT_TRUE(QDir(m_folder.Path("")).rename("data", "away"));
    EXPECT_EQ(Next().failures.size(), 2u);
    ASSERT_TRUE(QDir(m_folder.Path("")).rename("away", "data"));
    EXPECT_EQ(Next().features.size(), 2u);
}

TEST_F(SourceFollowerTest, AMissingFileThatIsPutBesideTheMapIsFound)
{
    ASSERT_TRUE(QFile::remove(m_folder.Path("data/a.geojson")));
    Next();
    m_folder.WriteSquare("a.geojson");
    EXPECT_TRUE(Next().features.contains(1));
}

} // namespace Orvane
