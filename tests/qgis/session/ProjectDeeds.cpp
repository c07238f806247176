// SPDX-License-Identifier: MIT
#include "qgis/session/SampleLayers.h"
#include "qgis/session/SessionWorld.h"

#include <qgsmaplayer.h>
#include <qgsvectorlayer.h>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

constexpr size_t FewLayers = 24;
constexpr size_t ManyLayers = 36;

std::vector<QgsLayerTreeGroup*> GroupsOf(SessionWorld& world)
{
    std::vector<QgsLayerTreeGroup*> groups{world.project.layerTreeRoot()};
    for (QgsLayerTreeGroup* group : world.project.layerTreeRoot()->findGroups(true))
        groups.push_back(group);
    return groups;
}

// The node that is edited stays: its end is a matter of tests of its own.
bool HoldsEditedNode(SessionWorld& world, const std::vector<qint32>& layerIDs)
{
    if (!world.isEdited)
        return false;
    const std::vector<qint32> members = world.Members();
    return world.tab == 1 || std::any_of(layerIDs.begin(), layerIDs.end(), [&](qint32 id) {
               return std::find(members.begin(), members.end(), id) != members.end();
           });
}

void AddLayer(SessionWorld& world)
{
    if (world.paper.size() >= ManyLayers)
        return;
    world.project.addMapLayer(
        NewSampleLayer(world.dice.OneOf(std::array{"Polygon", "LineString", "Point"}), world.NewName()));
    SessionWorld::Settle();
    world.AdoptLayers();
}

void RemoveLayer(SessionWorld& world)
{
    QgsMapLayer* layer = world.AnyRemovableLayer();
    if (world.paper.size() <= FewLayers || HoldsEditedNode(world, {world.IDOf(*layer)}))
        return;
    world.project.removeMapLayer(layer);
    SessionWorld::Settle();
    world.AdoptLayers();
}

void Duplicate(SessionWorld& world)
{
    QgsVectorLayer* layer = world.AnyPlainLayer();
    if (!layer || world.paper.size() >= ManyLayers)
        return;
    QgsVectorLayer* copy = layer->clone();
    copy->setName(world.NewName());
    world.project.addMapLayer(copy);
    SessionWorld::Settle();
    const Paper::Row original = world.PaperOf(*layer).row;
    world.AdoptLayers();
    Paper::Layer& onPaper = world.PaperOf(*copy);
    EXPECT_NE(world.IDOf(*copy), world.IDOf(*layer));
    for (const std::string& column : Paper::symbolColumns)
        EXPECT_EQ(onPaper.row.at(column), original.at(column)) << column;
    if (onPaper.row.at("OverrideMode") == 1.0)
        onPaper.opacity = world.PaperOf(*layer).opacity;
}

// As QGIS does when the user drags a node.
void Move(SessionWorld& world)
{
    const qint32 id = world.IDOf(*world.AnyLayer());
    if (HoldsEditedNode(world, {id})) // its group may become empty
        return;
    QgsLayerTreeLayer* node = world.NodeOf(id);
    QgsLayerTreeGroup* group = world.dice.OneOf(GroupsOf(world));
    auto* parent = qobject_cast<QgsLayerTreeGroup*>(node->parent());
    group->insertChildNode(world.dice.Below(1 + group->children().size()), node->clone());
    parent->removeChildNode(node);
    SessionWorld::Settle();
    world.AdoptLayers();
}

void AddGroup(SessionWorld& world)
{
    const auto groups = GroupsOf(world);
    if (groups.size() < 8)
        world.dice.OneOf(groups)->addGroup(world.NewName());
}

void RenameGroup(SessionWorld& world)
{
    const auto groups = GroupsOf(world);
    QgsLayerTreeGroup* group = world.dice.OneOf(groups);
    if (group != groups.front())
        group->setName(world.NewName());
}

void RemoveEmptyGroup(SessionWorld& world)
{
    const auto groups = GroupsOf(world);
    QgsLayerTreeGroup* group = world.dice.OneOf(groups);
    if (group == groups.front() || !group->findLayers().isEmpty() || (world.isEdited && world.tab == 1))
        return;
    qobject_cast<QgsLayerTreeGroup*>(group->parent())->removeChildNode(group);
}

void Reorder(SessionWorld& world)
{
    QgsLayerTree* tree = world.project.layerTreeRoot();
    QList<QgsMapLayer*> order = tree->layerOrder();
    std::swap(order[world.dice.Below(order.size())], order[world.dice.Below(order.size())]);
    tree->setCustomLayerOrder(order);
    tree->setHasCustomLayerOrder(world.dice.Chance(60));
    SessionWorld::Settle();
    world.AdoptLayers();
}

void SaveAndCompare(SessionWorld& world)
{
    for (auto& [id, layer] : world.paper) {
        auto* vectors = qobject_cast<QgsVectorLayer*>(world.LayerOf(id));
        if (vectors && vectors->isEditable())
            vectors->commitChanges();
    }
    world.CheckSavedProject();
}

// What is not applied ends with the project, and so do the steps.
void Reopen(SessionWorld& world)
{
    const QString path = world.folder.filePath("map.qgs");
    ASSERT_TRUE(world.project.write(path));
    ASSERT_TRUE(world.project.read(path));
    SessionWorld::Settle();
    for (auto& [id, layer] : world.paper) {
        if (!world.LayerOf(id)->isValid()) // then it is in no order of drawing
            world.Adopt(id, {"Priority"});
        if (layer.untouched.contains(QLatin1String("people > "))) // QGIS does not save a filter in memory
            layer.untouched = Paper::UntouchedOf(*world.LayerOf(id));
    }
    world.ForgetEdits();
    world.done.clear();
    world.undone.clear();
    EXPECT_FALSE(world.project.isDirty());
}

} // namespace

std::vector<Deed> ProjectDeeds()
{
    return {
        {"add a layer in QGIS", 2, AddLayer},
        {"remove a layer in QGIS", 2, RemoveLayer},
        {"duplicate a layer in QGIS", 2, Duplicate},
        {"move a layer in QGIS", 3, Move},
        {"add a group in QGIS", 1, AddGroup},
        {"rename a group in QGIS", 1, RenameGroup},
        {"remove a group in QGIS", 1, RemoveEmptyGroup},
        {"change the order in QGIS", 2, Reorder},
        {"save and compare", 1, SaveAndCompare},
        {"open the project again", 1, Reopen}};
}

} // namespace Orvane::Testing
