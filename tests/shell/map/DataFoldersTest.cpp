// SPDX-License-Identifier: MIT
#include "shell/map/DataFolders.h"

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "store/ILayerStore.h"

#include <QDir>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class DataFoldersTest : public testing::Test
{
protected:
    QString Folder() const { return QFileInfo(m_file).absolutePath(); }

    qint32 AddLayer(MapDocument& document, const QString& path)
    {
        NewLayer layer;
        layer.name = path;
        layer.path = path;
        layer.ogrLayer = "layer";
        return document.AddLayer(layer);
    }

    DataFolder m_folder;
    QString m_file = m_folder.WriteSquare("square.geojson");
};

} // namespace

TEST_F(DataFoldersTest, TheFolderOfAFileIsTheOneItIsIn)
{
    EXPECT_EQ(FolderOfData(m_file), Folder());
    EXPECT_EQ(FolderOfData(Folder() + "/gone.gpkg"), Folder()) << "where the file should be";
}

TEST_F(DataFoldersTest, TheFolderOfAFileInAnArchiveIsThatOfTheArchive)
{
    const QString archive = m_folder.Write("town.zip", "PK");
    EXPECT_EQ(FolderOfData("/vsizip/" + archive + "/roads/roads.shp"), Folder());
    EXPECT_EQ(FolderOfData("/vsizip/{" + archive + "}/roads.shp"), Folder());
    EXPECT_EQ(FolderOfData("/vsitar//vsigzip/" + archive + "/roads.shp"), Folder());
}

TEST_F(DataFoldersTest, ManyLayersAreAskedForByAsManyStatementsAsOne)
{
    const auto document = MapDocument::Untitled();
    std::vector<qint32> layerIDs;
    for (int layer = 0; layer < 40; ++layer)
        layerIDs.push_back(AddLayer(*document, m_file));
    const LayerCommand command = OpenFolderCommand(*document);
    const auto statementsOf = [&](const std::vector<qint32>& chosen) {
        int statements = 0;
        document->Database().SetQueryListener([&](const QString&) { ++statements; });
        EXPECT_EQ(command.whyNot(chosen), QString());
        document->Database().SetQueryListener({});
        return statements;
    };
    EXPECT_EQ(statementsOf(layerIDs), statementsOf({layerIDs.front()}));
}

TEST_F(DataFoldersTest, AFolderOfDataIsItsOwnFolder)
{
    EXPECT_EQ(FolderOfData(Folder()), Folder());
}

TEST_F(DataFoldersTest, DataThatAreInNoFolderHaveNone)
{
    EXPECT_EQ(FolderOfData("PG:dbname=town"), "");
    EXPECT_EQ(FolderOfData("/vsicurl/https://maps.example/a.json"), "");
    EXPECT_EQ(FolderOfData("/vsizip//vsicurl/https://maps.example/a.zip/a.shp"), "");
    EXPECT_EQ(FolderOfData("/no/such/folder/a.shp"), "");
    EXPECT_EQ(FolderOfData("/vsizip//no/such/folder/a.zip/a.shp"), "");
}

TEST_F(DataFoldersTest, TheCommandSaysWhyItIsNotPossible)
{
    const auto document = MapDocument::Untitled();
    const qint32 here = AddLayer(*document, m_file);
    const qint32 server = AddLayer(*document, "PG:dbname=town");
    const LayerCommand command = OpenFolderCommand(*document);
    EXPECT_EQ(command.whyNot({here}), "");
    EXPECT_EQ(command.whyNot({here, server}), "");
    EXPECT_EQ(command.whyNot({server}), "The data of these layers are in no folder of this computer.");
}

TEST_F(DataFoldersTest, TheCommandDoesNotFillTheScreenWithWindows)
{
    const auto document = MapDocument::Untitled();
    std::vector<qint32> layerIDs;
    for (int i = 0; i < 6; ++i) {
        const QString folder = Folder() + QStringLiteral("/f%1").arg(i);
        QDir().mkpath(folder);
        layerIDs.push_back(AddLayer(*document, folder + "/a.geojson"));
    }
    EXPECT_EQ(
        OpenFolderCommand(*document).whyNot(layerIDs), "These layers are in too many different folders.");
}

} // namespace Orvane
