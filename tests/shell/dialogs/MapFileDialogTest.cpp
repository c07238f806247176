// SPDX-License-Identifier: MIT
#include "shell/dialogs/MapFileDialog.h"

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapFileDialogTest : public testing::Test
{
protected:
    void AddLayer(const QString& path)
    {
        NewLayer layer;
        layer.path = path;
        m_document->AddLayer(layer);
    }

    QString Proposed() const { return MapFileDialog::Proposed(*m_document); }

    DataFolder m_folder;
    std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
};

} // namespace

TEST_F(MapFileDialogTest, AMapOfOneFileIsNamedAfterItAndStandsBesideIt)
{
    AddLayer(m_folder.WriteSquare("rivers.geojson"));
    AddLayer(m_folder.Path("rivers.geojson"));
    EXPECT_EQ(Proposed(), m_folder.Path("rivers.orvane"));
}

TEST_F(MapFileDialogTest, AMapOfSeveralFilesIsNamedAfterTheirFolder)
{
    AddLayer(m_folder.WriteSquare("rivers.geojson"));
    AddLayer(m_folder.WriteSquare("lakes.geojson"));
    const QString folder = QFileInfo(m_folder.Path("any")).path();
    EXPECT_EQ(Proposed(), folder + "/" + QFileInfo(folder).fileName() + ".orvane");
}

TEST_F(MapFileDialogTest, AnEmptyMapIsProposedForTheDocuments)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(QFileInfo(Proposed()).path(), documents);
    EXPECT_EQ(QFileInfo(Proposed()).suffix(), "orvane");
}

TEST_F(MapFileDialogTest, AMapOnAServerIsProposedUnderItsName)
{
    MapDocument::Create(m_folder.Path("copy.orvane"));
    m_document = MapDocument::OpenCopy(m_folder.Path("copy.orvane"), "postgresql:///?schema=Town%2FOld");
    EXPECT_EQ(QFileInfo(Proposed()).fileName(), "Town-Old.orvane");
}

TEST_F(MapFileDialogTest, AStoredMapKeepsItsPlaceAndName)
{
    m_document = MapDocument::Create(m_folder.Path("town.orvane"));
    AddLayer(m_folder.WriteSquare("rivers.geojson"));
    EXPECT_EQ(Proposed(), m_folder.Path("town.orvane"));
}

} // namespace Orvane
