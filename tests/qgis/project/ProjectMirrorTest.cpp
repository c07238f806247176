// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectMirror.h"

#include "hostkit/lists/StoredList.h"
#include "qgis/project/ProjectFixture.h"
#include "support/Errors.h"

#include <QSignalSpy>

namespace Orvane::Testing {

namespace {

constexpr qint32 Red = 0x0000FF; // BGR
constexpr qint32 Blue = 0xFF0000;

class ProjectMirrorTest : public ProjectFixture
{
};

TEST_F(ProjectMirrorTest, EachLayerHasARow)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    Paint(*roads, Qt::red);
    EXPECT_TRUE(mirror.ReadAll());
    EXPECT_EQ(ToText(Stored(*roads, "Name")), "Roads");
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), Red);
    EXPECT_EQ(ToInt32(Stored(*roads, "Priority")), 128);
    EXPECT_FALSE(mirror.ReadAll());
}

TEST_F(ProjectMirrorTest, ReadingDoesNotMarkTheProjectAsChanged)
{
    AddLayer("Roads");
    project.layerTreeRoot()->addGroup("Town");
    project.setDirty(false);
    mirror.ReadAll();
    EXPECT_FALSE(project.isDirty());
}

TEST_F(ProjectMirrorTest, ARowThatStaysKeepsItsSchemes)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    store->Execute("CREATE TABLE Notes (LayerID INTEGER REFERENCES Layers (LayerID) ON DELETE CASCADE)");
    store->Execute("INSERT INTO Notes VALUES (?1)", {mirror.IDOf(*roads)});
    Paint(*roads, Qt::blue);
    EXPECT_TRUE(mirror.ReadLayers({roads->id()}));
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), Blue);
    EXPECT_FALSE(store->OpenRecordset("SELECT LayerID FROM Notes")->AtEOF());
}

TEST_F(ProjectMirrorTest, TellsWhichRowsHaveChanged)
{
    const QList<QgsVectorLayer*> layers = AddLayers({"Roads", "Lakes"});
    EXPECT_TRUE(mirror.ReadAll().isList);
    Paint(*layers[1], Qt::blue);
    const MirrorChanges changes = mirror.ReadLayers({layers[0]->id(), layers[1]->id()});
    EXPECT_EQ(changes.layers, QSet<qint32>{mirror.IDOf(*layers[1])});
    EXPECT_FALSE(changes.isList);
    project.layerTreeRoot()->addGroup("Town");
    EXPECT_TRUE(mirror.ReadTree().isList);
}

TEST_F(ProjectMirrorTest, KnowsWhatItKnewWhenOneOfSeveralLayersCannotBeStored)
{
    const QList<QgsVectorLayer*> layers = AddLayers({"A", "B", "C", "D", "E", "F", "G", "H"});
    mirror.ReadAll();
    QSet<QString> ids;
    for (QgsVectorLayer* layer : layers) {
        layer->setName(layer->name() + " new");
        ids << layer->id();
    }
    QgsVectorLayer* lakes = AddLayer("Lakes");
    store->Execute("INSERT INTO Layers (LayerID) VALUES (?1)", {mirror.IDOf(*lakes)}); // is in the way
    EXPECT_NE(ErrorOf([&] { mirror.ReadLayers(ids + QSet<QString>{lakes->id()}); }), 0);
    EXPECT_EQ(ToText(Stored(*layers[0], "Name")), "A");
    EXPECT_EQ(mirror.ReadLayers(ids).layers.size(), 8);
    EXPECT_EQ(ToText(Stored(*layers[0], "Name")), "A new");
}

TEST_F(ProjectMirrorTest, FindsManyLayersInTheTree)
{
    QStringList names;
    for (int number = 0; number < 30; ++number)
        names << QStringLiteral("Layer %1").arg(number);
    const QList<QgsVectorLayer*> layers = AddLayers(names);
    QSet<QString> ids;
    for (const QgsVectorLayer* layer : layers)
        ids << layer->id();
    mirror.ReadAll();
    project.layerTreeRoot()->findLayer(layers[7])->setItemVisibilityChecked(false);
    EXPECT_EQ(mirror.ReadLayers(ids).layers, QSet<qint32>{mirror.IDOf(*layers[7])});
    EXPECT_FALSE(ToBoolean(Stored(*layers[7], "Visible")));
}

TEST_F(ProjectMirrorTest, ARemovedLayerLosesItsRow)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    QgsVectorLayer* lakes = AddLayer("Lakes");
    mirror.ReadAll();
    const QString id = roads->id();
    project.removeMapLayer(roads);
    EXPECT_TRUE(mirror.ReadLayers({id}));
    const auto layers = StoredList::Layers(*store);
    ASSERT_EQ(layers.size(), 1u);
    EXPECT_EQ(layers[0].id, mirror.IDOf(*lakes));
}

TEST_F(ProjectMirrorTest, AStoredColourGoesToTheLayer)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    Paint(*roads, Qt::red);
    mirror.ReadAll();
    project.setDirty(false);
    QSignalSpy repainted(roads, &QgsMapLayer::repaintRequested);
    StoreValue(*roads, "FillForeColor", Blue);
    EXPECT_FALSE(mirror.Write({mirror.IDOf(*roads)}));
    EXPECT_EQ(FillOf(*roads), QColor(Qt::blue));
    EXPECT_EQ(repainted.count(), 1);
    EXPECT_TRUE(project.isDirty());
}

TEST_F(ProjectMirrorTest, WhatALayerDoesNotTakeIsNotStored)
{
    QgsVectorLayer* table = AddLayer("Table", "None");
    mirror.ReadAll();
    ASSERT_TRUE(Stored(*table, "FillForeColor").IsNull());
    StoreValue(*table, "FillForeColor", Blue);
    EXPECT_TRUE(mirror.Write({mirror.IDOf(*table)}));
    EXPECT_TRUE(Stored(*table, "FillForeColor").IsNull());
}

TEST_F(ProjectMirrorTest, APriorityMovesTheLayerInTheOrderOfDrawing)
{
    const auto layers = AddLayers({"Roads", "Lakes"});
    mirror.ReadAll();
    StoreValue(*layers[1], "Priority", 1);
    mirror.Write({mirror.IDOf(*layers[1])});
    EXPECT_EQ(OrderOfDrawing(), (QStringList{"Lakes", "Roads"}));
}

TEST_F(ProjectMirrorTest, AnErrorLeavesAllLayersAsTheyWere)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    QgsVectorLayer* lakes = AddLayer("Lakes");
    Paint(*roads, Qt::red);
    Paint(*lakes, Qt::red);
    mirror.ReadAll();
    StoreValue(*roads, "FillForeColor", Blue);
    StoreValue(*lakes, "FillForeColor", QStringLiteral("blue"));
    EXPECT_EQ(ErrorOf([&] { mirror.Write({mirror.IDOf(*roads), mirror.IDOf(*lakes)}); }), typeMismatchError);
    EXPECT_EQ(FillOf(*roads), QColor(Qt::red));
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), Red);
    EXPECT_EQ(ToInt32(Stored(*lakes, "FillForeColor")), Red);
}

TEST_F(ProjectMirrorTest, AnErrorNamesTheLayer)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "FillForeColor", QStringLiteral("blue"));
    EXPECT_TRUE(DescriptionOf([&] { mirror.Write({mirror.IDOf(*roads)}); }).contains("\"Roads\""));
}

TEST_F(ProjectMirrorTest, WhatALayerRefusesIsTold)
{
    QgsVectorLayer* table = AddLayer("Table", "None");
    mirror.ReadAll();
    std::vector<RefusedColumns> refused;
    mirror.SetRefused([&](const std::vector<RefusedColumns>& layers) { refused = layers; });
    StoreValue(*table, "FillForeColor", Blue);
    mirror.Write({mirror.IDOf(*table)});
    ASSERT_EQ(refused.size(), 1u);
    EXPECT_EQ(refused[0].layer, "Table");
    EXPECT_EQ(refused[0].columns, std::vector<std::string_view>{"FillForeColor"});
}

TEST_F(ProjectMirrorTest, AQuickModeThatWasEndedInQgisIsForgottenAtOnce)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "OverrideMode", 2);
    mirror.Write({mirror.IDOf(*roads)});
    QgsLayerTreeLayer* node = project.layerTreeRoot()->findLayer(roads);
    EXPECT_FALSE(node->itemVisibilityChecked());
    node->setItemVisibilityChecked(true);
    mirror.ReadLayers({roads->id()});
    node->setItemVisibilityChecked(false);
    mirror.ReadLayers({roads->id()});
    EXPECT_EQ(ToInt32(Stored(*roads, "OverrideMode")), 0);
    EXPECT_FALSE(ToBoolean(Stored(*roads, "Visible")));
    EXPECT_TRUE(roads->customProperty("orvane/FormerTick").isNull());
}

TEST_F(ProjectMirrorTest, AFlagThatWasEndedInQgisIsForgottenAtOnce)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "Enquirable", false); // and still hitable
    mirror.Write({mirror.IDOf(*roads)});
    const QgsMapLayer::LayerFlags flags = roads->flags();
    roads->setFlags(flags | QgsMapLayer::Identifiable);
    mirror.ReadLayers({roads->id()});
    roads->setFlags(flags);
    mirror.ReadLayers({roads->id()});
    EXPECT_FALSE(ToBoolean(Stored(*roads, "Hitable")));
    EXPECT_FALSE(ToBoolean(Stored(*roads, "Enquirable")));
}

TEST_F(ProjectMirrorTest, ALayerThatHasLeftTheProjectIsSkipped)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    const qint32 layerID = mirror.IDOf(*roads);
    StoreValue(*roads, "FillForeColor", Blue);
    project.removeMapLayer(roads);
    EXPECT_FALSE(mirror.Write({layerID}));
    mirror.WriteName(layerID, "Streets");
}

TEST_F(ProjectMirrorTest, AStoreErrorLeavesTheRowsAsTheyWere)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    roads->setName("Streets");
    QgsVectorLayer* lakes = AddLayer("Lakes");
    store->Execute("INSERT INTO Layers (LayerID) VALUES (?1)", {mirror.IDOf(*lakes)}); // is in the way
    EXPECT_NE(ErrorOf([&] { mirror.ReadAll(); }), 0);
    EXPECT_EQ(ToText(Stored(*roads, "Name")), "Roads");
    store->Execute("DELETE FROM Layers WHERE LayerID = ?1", {mirror.IDOf(*lakes)});
    EXPECT_TRUE(mirror.ReadAll());
    EXPECT_EQ(ToText(Stored(*roads, "Name")), "Streets");
    EXPECT_EQ(ToText(Stored(*lakes, "Name")), "Lakes");
}

TEST_F(ProjectMirrorTest, AnotherProjectStartsWithoutRows)
{
    AddLayer("Roads");
    project.layerTreeRoot()->addGroup("Town");
    mirror.ReadAll();
    project.clear();
    mirror.Forget();
    EXPECT_TRUE(StoredList::Layers(*store).empty());
    EXPECT_TRUE(StoredList::Groups(*store).empty());
    QgsVectorLayer* lakes = AddLayer("Lakes");
    EXPECT_TRUE(mirror.ReadAll());
    EXPECT_EQ(ToText(Stored(*lakes, "Name")), "Lakes");
}

} // namespace

} // namespace Orvane::Testing
