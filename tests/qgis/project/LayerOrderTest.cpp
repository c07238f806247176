// SPDX-License-Identifier: MIT
#include "qgis/project/LayerOrder.h"

#include "qgis/project/ProjectFixture.h"

namespace Orvane::Testing {

namespace {

class LayerOrderTest : public ProjectFixture
{
protected:
    QList<qint32> Priorities(const QList<QgsVectorLayer*>& layers) const
    {
        const auto read = LayerOrder::Read(project);
        QList<qint32> priorities;
        for (const QgsVectorLayer* layer : layers)
            priorities << read.value(layer->id(), -1);
        return priorities;
    }
};

TEST_F(LayerOrderTest, LayersThatWereNeverOrderedHaveTheMiddlePriority)
{
    const auto layers = AddLayers({"A", "B"});
    EXPECT_EQ(Priorities(layers), (QList<qint32>{128, 128}));
    EXPECT_FALSE(project.layerTreeRoot()->hasCustomLayerOrder());
}

TEST_F(LayerOrderTest, ALowerNumberIsDrawnAboveTheOthers)
{
    const auto layers = AddLayers({"A", "B", "C"});
    LayerOrder::Write(project, {{layers[2]->id(), 5}});
    EXPECT_EQ(OrderOfDrawing(), (QStringList{"C", "A", "B"}));
    EXPECT_EQ(Priorities(layers), (QList<qint32>{128, 128, 5}));
}

TEST_F(LayerOrderTest, LayersOfOnePriorityStayAsTheyWere)
{
    const auto layers = AddLayers({"A", "B", "C"});
    LayerOrder::Write(project, {{layers[0]->id(), 200}, {layers[1]->id(), 200}});
    EXPECT_EQ(OrderOfDrawing(), (QStringList{"C", "A", "B"}));
}

TEST_F(LayerOrderTest, TheOrderOfTheTreeComesBackWithItsNumbers)
{
    const auto layers = AddLayers({"A", "B"});
    LayerOrder::Write(project, {{layers[1]->id(), 1}});
    EXPECT_TRUE(project.layerTreeRoot()->hasCustomLayerOrder());
    LayerOrder::Write(project, {{layers[1]->id(), 128}, {layers[0]->id(), 1}});
    EXPECT_FALSE(project.layerTreeRoot()->hasCustomLayerOrder());
    EXPECT_EQ(OrderOfDrawing(), (QStringList{"A", "B"}));
}

TEST_F(LayerOrderTest, AnOrderOfTheUsersStaysSwitchedOn)
{
    const auto layers = AddLayers({"A", "B"});
    project.layerTreeRoot()->setHasCustomLayerOrder(true);
    project.layerTreeRoot()->setCustomLayerOrder(QList<QgsMapLayer*>{layers[1], layers[0]});
    LayerOrder::Write(project, {{layers[0]->id(), 1}});
    EXPECT_EQ(OrderOfDrawing(), (QStringList{"A", "B"}));
    EXPECT_TRUE(project.layerTreeRoot()->hasCustomLayerOrder());
}

TEST_F(LayerOrderTest, AMoveInQGISChangesAsFewNumbersAsPossible)
{
    const auto layers = AddLayers({"A", "B", "C", "D"});
    LayerOrder::Write(
        project,
        {{layers[0]->id(), 10}, {layers[1]->id(), 20}, {layers[2]->id(), 30}, {layers[3]->id(), 40}});
    project.layerTreeRoot()->setHasCustomLayerOrder(true);
    project.layerTreeRoot()->setCustomLayerOrder(
        QList<QgsMapLayer*>{layers[3], layers[0], layers[1], layers[2]});
    EXPECT_EQ(Priorities(layers), (QList<qint32>{10, 20, 30, 10}));
}

TEST_F(LayerOrderTest, NumbersAreSavedWithTheProject)
{
    const QTemporaryDir folder;
    const auto layers = AddLayers({"A", "B"});
    LayerOrder::Write(project, {{layers[1]->id(), 7}});
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgs")));
    EXPECT_EQ(LayerOrder::Read(opened).value(layers[1]->id()), 7);
    EXPECT_EQ(opened.layerTreeRoot()->layerOrder().constFirst()->name(), "B");
}

} // namespace

} // namespace Orvane::Testing
