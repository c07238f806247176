// SPDX-License-Identifier: MIT
#include "mapkit/document/MapDocument.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

NewLayer LayerOf(const QString& path)
{
    NewLayer layer;
    layer.name = "Roads";
    layer.path = path;
    layer.ogrLayer = "roads";
    return layer;
}

QStringList RowsOf(MapDocument& document, const QString& table, const std::vector<const char*>& columns)
{
    QStringList texts;
    const auto rows = document.Database().OpenRecordset("SELECT * FROM " + table + " ORDER BY 1");
    for (; !rows->AtEOF(); rows->MoveNext()) {
        for (const char* column : columns)
            texts << ToTextOrNone(rows->Field(column));
    }
    return texts;
}

// How often the map is asked while these layers and groups are added.
int QuestionsFor(int layers)
{
    const auto map = MapDocument::Untitled();
    int questions = 0;
    map->Database().SetQueryListener(
        [&](const QString& sql) { questions += sql.startsWith("SELECT") ? 1 : 0; });
    map->AddLayers(std::vector<NewLayer>(size_t(layers)));
    QStringList names;
    for (int group = 0; group < layers; ++group)
        names << "Group";
    map->AddGroups(names, true);
    map->Database().SetQueryListener({});
    return questions;
}

} // namespace

TEST(ManyNewLayersTest, ManyLayersAndGroupsAreAddedAsOneAfterTheOther)
{
    const auto one = MapDocument::Untitled();
    const auto many = MapDocument::Untitled();
    for (const auto& document : {one.get(), many.get()}) {
        document->AddLayer(LayerOf("first"));
        document->Database().Execute("UPDATE Layers SET Code = 1");
        document->AddGroup("First", true);
    }
    const std::vector<NewLayer> layers{LayerOf("a"), NewLayer::OfRaster(), LayerOf("c")};
    std::vector<qint32> layerIDs;
    for (const NewLayer& layer : layers)
        layerIDs.push_back(one->AddLayer(layer));
    EXPECT_EQ(many->AddLayers(layers), layerIDs);
    const std::vector<qint32> groupIDs{one->AddGroup("A", true), one->AddGroup("B", true)};
    EXPECT_EQ(many->AddGroups({"A", "B"}, true), groupIDs);
    const auto expectSame = [&](const QString& table, const std::vector<const char*>& columns) {
        EXPECT_EQ(RowsOf(*many, table, columns), RowsOf(*one, table, columns));
    };
    expectSame("Layers", {"LayerID", "Name", "Code", "Priority"});
    expectSame("LayerGroups", {"ID", "Name", "GroupOrdering", "Expanded"});
    expectSame("LayerSources", {"LayerID", "Path", "OgrLayer", "Kind"});
}

TEST(ManyNewLayersTest, ManyAreAddedWithNoMoreQuestionsThanOne)
{
    EXPECT_EQ(QuestionsFor(300), QuestionsFor(1));
}

} // namespace Orvane
