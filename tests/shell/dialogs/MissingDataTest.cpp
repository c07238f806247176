// SPDX-License-Identifier: MIT
#include "shell/dialogs/MissingData.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"

#include <QDir>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MissingDataTest : public testing::Test
{
protected:
    MissingDataTest()
    {
        for (const char* folder : {"maps", "data", "archive/old"})
            QDir(m_folder.Path("")).mkpath(folder);
        for (const char* name : {"a", "b"}) {
            NewLayer layer;
            layer.name = layer.ogrLayer = name;
            layer.path = m_folder.WriteSquare("data/" + QString(name) + ".geojson");
            layer.filter = "type = 'a'";
            m_document->AddLayer(layer);
        }
    }

    void Move(const QString& name, const QString& folder)
    {
        ASSERT_TRUE(QFile::rename(m_folder.Path("data/" + name), m_folder.Path(folder + "/" + name)));
    }
    std::vector<LayerSource> Look()
    {
        return LookForData(MissingSources(*m_document), m_folder.Path("archive"), m_progress);
    }

    DataFolder m_folder;
    Progress m_progress;
    std::unique_ptr<MapDocument> m_document
        = (QDir(m_folder.Path("")).mkpath("maps"), MapDocument::Create(m_folder.Path("maps/map.orvane")));
};

} // namespace

TEST_F(MissingDataTest, NothingIsMissingWhileTheFilesAreThere)
{
    EXPECT_TRUE(MissingSources(*m_document).empty());
}

TEST_F(MissingDataTest, AFileThatMovedIsFoundBelowTheFolderAndTaken)
{
    Move("a.geojson", "archive/old");
    ASSERT_EQ(MissingSources(*m_document).size(), 1u);
    const std::vector<LayerSource> found = Look();
    ASSERT_EQ(found.size(), 1u);
    TakeFoundData(*m_document, found);
    EXPECT_TRUE(MissingSources(*m_document).empty());
    EXPECT_EQ(m_document->Sources()[0].path, m_folder.Path("archive/old/a.geojson"));
    EXPECT_EQ(m_document->Sources()[0].filter, "type = 'a'");
    EXPECT_EQ(m_document->Sources()[1].path, m_folder.Path("data/b.geojson"));
}

TEST_F(MissingDataTest, OfFilesOfOneNameTheLeastDeepIsTaken)
{
    Move("a.geojson", "archive/old");
    m_folder.WriteSquare("archive/a.geojson");
    ASSERT_EQ(Look().size(), 1u);
    EXPECT_EQ(Look()[0].path, m_folder.Path("archive/a.geojson"));
}

TEST_F(MissingDataTest, WhatIsNotThereStaysMissing)
{
    Move("a.geojson", "maps"); // not below the folder, but beside the map
    EXPECT_TRUE(MissingSources(*m_document).empty());
    Move("b.geojson", "archive");
    m_document->SetSource({1, m_folder.Path("nowhere/c.geojson"), "a", {}});
    EXPECT_EQ(MissingSources(*m_document).size(), 2u);
    ASSERT_EQ(Look().size(), 1u);
    EXPECT_EQ(Look()[0].layerID, 2);
}

TEST_F(MissingDataTest, LookingEndsWhenItIsCancelled)
{
    Move("a.geojson", "archive");
    m_progress.Cancel();
    EXPECT_THROW(Look(), Cancelled);
}

} // namespace Orvane
