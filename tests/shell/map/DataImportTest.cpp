// SPDX-License-Identifier: MIT
#include "shell/map/DataImport.h"

#include "mapkit/DataFolder.h"
#include "mapkit/ZipFile.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QDir>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace Orvane {

using namespace Testing;

namespace {

class DataImportTest : public testing::Test
{
protected:
    FoundData Look(const QStringList& paths) { return LookInto(paths, m_progress); }

    QStringList Names(const QString& table) const
    {
        QStringList names;
        const auto rows = m_document->Database().OpenRecordset("SELECT Name FROM " + table + " ORDER BY 1");
        for (; !rows->AtEOF(); rows->MoveNext())
            names << ToText(rows->Field("Name"));
        return names;
    }

    DataFolder m_folder;
    Progress m_progress;
    std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
};

} // namespace

TEST_F(DataImportTest, EachFileBecomesAGroupAndEachOfItsLayersALayer)
{
    const QStringList paths = {m_folder.WriteSquare("fields.geojson"), m_folder.WriteSquare("woods.geojson")};
    AddToMap(*m_document, Look(paths));
    EXPECT_EQ(Names("LayerGroups"), QStringList({"fields", "woods"}));
    EXPECT_EQ(Names("Layers"), QStringList({"fields", "woods"}));
    EXPECT_EQ(m_document->Sources()[1].path, paths[1]);
}

TEST_F(DataImportTest, LayersAreToldApartByColour)
{
    AddToMap(*m_document, Look({m_folder.WriteSquare("a.geojson"), m_folder.WriteSquare("b.geojson")}));
    const auto rows = m_document->Database().OpenRecordset("SELECT count(DISTINCT Color) AS N FROM Layers");
    EXPECT_EQ(ToInt32(rows->Field("N")), 2);
}

TEST_F(DataImportTest, DataDecideTheSystemOfANewMapAndLaterOnesKeepIt)
{
    AddToMap(*m_document, Look({m_folder.WriteSquare("a.geojson")}));
    EXPECT_EQ(m_document->System(), "EPSG:3857");
    m_document->SetSystem("EPSG:32632");
    AddToMap(*m_document, Look({m_folder.WriteSquare("b.geojson")}));
    EXPECT_EQ(m_document->System(), "EPSG:32632");
}

TEST_F(DataImportTest, FilesThatCannotBeReadAreNamedAndTheOthersTaken)
{
    const FoundData found = Look({m_folder.Write("bad.shp", "x"), m_folder.WriteSquare("good.geojson")});
    ASSERT_EQ(found.problems.size(), 1u);
    EXPECT_TRUE(found.problems[0].text.contains("bad.shp"));
    EXPECT_EQ(found.sources.size(), 1u);
}

TEST_F(DataImportTest, ATableWithoutCoordinatesIsNamed)
{
    const FoundData found
        = WithTablesAsLayers(Look({m_folder.Write("table.csv", "name,number\nA,1\n")}), m_progress);
    ASSERT_EQ(found.problems.size(), 1u);
    EXPECT_TRUE(found.problems[0].text.contains("table.csv"));
    EXPECT_TRUE(found.sources.empty());
}

TEST_F(DataImportTest, ATableBecomesALayerWithTheColumnsThatAreChosen)
{
    FoundData found = Look({m_folder.Write("towns.csv", "lon,lat,x,y\n13,52,1,2\n")});
    ASSERT_EQ(found.tables.size(), 1u);
    EXPECT_EQ(found.tables[0].columns.x, "lon");
    found.tables[0].columns = {"x", "y", {}};
    found = WithTablesAsLayers(found, m_progress);
    AddToMap(*m_document, found);
    EXPECT_EQ(Names("LayerGroups"), QStringList("towns"));
    const LayerSource source = m_document->Sources().at(0);
    EXPECT_EQ(source.choice.columns.x, "x");
    const SourceContents contents = ReadSources({source}, {}, m_progress);
    EXPECT_EQ(contents.features.at(source.layerID)->Bounds(), (Box{1, 2, 1, 2}));
}

TEST_F(DataImportTest, AFolderBringsAllItsData)
{
    QDir(m_folder.Path("")).mkpath("data/deep/deeper");
    m_folder.WriteSquare("data/a.geojson");
    m_folder.WriteSquare("data/deep/deeper/b.geojson");
    m_folder.Write("data/deep/notes.txt", "nothing");
    AddToMap(*m_document, Look({m_folder.Path("data")}));
    EXPECT_EQ(Names("Layers"), QStringList({"a", "b"}));
    EXPECT_EQ(Names("LayerGroups"), QStringList({"a", "b"}));
}

TEST_F(DataImportTest, AFileInAnArchiveThatCannotBeReadIsNamedWithTheArchive)
{
    const FoundData found = Look({WriteZip(
        m_folder.Path("a.zip"),
        {{"bad.shp", "x"}, {"good.geojson", R"({"type":"Point","coordinates":[1,2]})"}})});
    EXPECT_EQ(found.sources.size(), 1u);
    ASSERT_EQ(found.problems.size(), 1u);
    EXPECT_TRUE(found.problems[0].text.contains("bad.shp") && found.problems[0].text.contains("a.zip"));
}

TEST_F(DataImportTest, AnArchiveWithATableAndALayerIsOneGroup)
{
    const QString path = WriteZip(
        m_folder.Path("a.zip"),
        {{"towns.csv", "lon,lat\n13,52\n"}, {"roads.geojson", R"({"type":"Point","coordinates":[1,2]})"}});
    const FoundData found = WithTablesAsLayers(Look({path}), m_progress);
    AddToMap(*m_document, found);
    EXPECT_EQ(Names("LayerGroups"), QStringList("a"));
    EXPECT_EQ(Names("Layers"), QStringList({"roads", "towns"}));
    EXPECT_TRUE(found.problems.empty());
}

TEST_F(DataImportTest, ManyFilesAreAddedWithNoMoreQuestionsToTheMapThanAFew)
{
    const auto questionsFor = [this](size_t files) {
        FoundData found;
        for (size_t file = 0; file < files; ++file)
            found.sources.push_back(
                {QStringLiteral("/data/%1.gpkg").arg(file), {SourceLayer(), SourceLayer()}});
        int questions = 0;
        m_document = MapDocument::Untitled();
        m_document->Database().SetQueryListener(
            [&](const QString& sql) { questions += sql.startsWith("SELECT") ? 1 : 0; });
        EXPECT_EQ(AddToMap(*m_document, found).size(), 2 * files);
        m_document->Database().SetQueryListener({});
        return questions;
    };
    const int few = questionsFor(2);
    EXPECT_EQ(questionsFor(100), few);
    EXPECT_EQ(Names("LayerGroups").size(), 100);
    EXPECT_EQ(Names("Layers").size(), 200);
}

TEST_F(DataImportTest, NothingFoundLeavesTheMapAsItWas)
{
    AddToMap(*m_document, FoundData());
    EXPECT_FALSE(m_document->HasLayers());
    EXPECT_EQ(m_document->System(), "");
}

TEST_F(DataImportTest, FeaturesThatAreReadBeforeBelongToTheirLayersAfterwards)
{
    m_document->SetSystem("EPSG:4326");
    const FoundData found
        = Look({m_folder.WriteSquare("a.geojson", 10), m_folder.WriteSquare("b.geojson", 60)});
    AddToMap(*m_document, Look({m_folder.WriteSquare("c.geojson")}));
    const SourceContents read = ReadFound(found, SystemFor(*m_document, found), m_progress);
    const std::vector<qint32> layerIDs = AddToMap(*m_document, found);
    const SourceContents contents = WithIDs(read, layerIDs);
    ASSERT_EQ(layerIDs.size(), 2u);
    ASSERT_EQ(contents.features.size(), 2u);
    EXPECT_EQ(contents.features.at(layerIDs[0])->Bounds().minX, 10);
    EXPECT_EQ(contents.features.at(layerIDs[1])->Bounds().minX, 60);
    EXPECT_TRUE(contents.failures.empty());
}

TEST_F(DataImportTest, ACancelledReadingIsNotTakenForAll)
{
    const FoundData found = Look({m_folder.WriteSquare("a.geojson")});
    m_progress.Cancel();
    EXPECT_THROW(ReadFound(found, SystemFor(*m_document, found), m_progress), Cancelled);
}

TEST_F(DataImportTest, AVirtualFileThatNamesAPipeIsToldWithTheReason)
{
    const QString pipe = m_folder.Path("pipe.geojson");
    ASSERT_EQ(mkfifo(pipe.toUtf8().constData(), 0600), 0);
    const FoundData found = Look({m_folder.Write(
        "layers.vrt",
        "<OGRVRTDataSource><OGRVRTLayer name=\"a\"><SrcDataSource>" + pipe.toUtf8()
            + "</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>")});
    ASSERT_EQ(found.problems.size(), 1u);
    EXPECT_TRUE(found.problems[0].text.contains("layers.vrt")) << qPrintable(found.problems[0].text);
    EXPECT_TRUE(found.problems[0].text.contains("pipe.geojson")) << qPrintable(found.problems[0].text);
}

TEST_F(DataImportTest, ACancelledLookEnds)
{
    m_progress.Cancel();
    EXPECT_THROW(Look({m_folder.WriteSquare("a.geojson")}), Cancelled);
}

} // namespace Orvane
