// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeIndexes.h"

#include "component/dialog/trees/LayerTreeModel.h"

#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

/// A view that shows two groups through a filter on the text and a sorting proxy.
class NodeIndexesTest : public testing::Test
{
protected:
    NodeIndexesTest()
    {
        GroupEntry land;
        land.groupID = 1;
        land.text = "Land";
        land.layers = {{.layerID = 11, .text = "Woods"}, {.layerID = 12, .text = "Roads"}};
        GroupEntry water;
        water.groupID = 2;
        water.text = "Water";
        water.layers = {{.layerID = 12, .text = "Roads"}, {.layerID = 13, .text = "Lakes"}};
        model.SetGroups({land, water});
        filter.setRecursiveFilteringEnabled(true);
        filter.setSourceModel(&model);
        sorting.setSourceModel(&filter);
        view.setModel(&sorting);
    }

    QModelIndex IndexOf(qint32 groupID, qint32 layerID) const
    {
        return NodeIndexes::IndexOf(view, {.isGroup = layerID == 0, .groupID = groupID, .layerID = layerID});
    }

    LayerTreeModel model;
    QSortFilterProxyModel filter;
    QSortFilterProxyModel sorting;
    QTreeView view;
    QAbstractItemModelTester tester{&sorting};
};

} // namespace

TEST_F(NodeIndexesTest, FindsANodeBehindProxies)
{
    sorting.sort(0, Qt::DescendingOrder);
    const QModelIndex lakes = IndexOf(2, 13);
    EXPECT_EQ(lakes.model(), &sorting);
    EXPECT_EQ(lakes.data().toString(), "Lakes");
    EXPECT_EQ(lakes.parent().row(), 0) << "Water comes first";
    EXPECT_EQ(NodeIndexes::NodeAt(lakes).layerID, 13);
    EXPECT_EQ(NodeIndexes::NodeAt(lakes.parent()).groupID, 2);
}

TEST_F(NodeIndexesTest, TellsTheSameLayerOfTwoGroupsApart)
{
    EXPECT_EQ(NodeIndexes::NodeAt(IndexOf(1, 12)).groupID, 1);
    EXPECT_EQ(NodeIndexes::NodeAt(IndexOf(2, 12)).groupID, 2);
}

TEST_F(NodeIndexesTest, AHiddenNodeHasNoIndex)
{
    filter.setFilterFixedString("Lakes");
    EXPECT_TRUE(IndexOf(2, 13).isValid());
    EXPECT_TRUE(IndexOf(2, 0).isValid());
    EXPECT_FALSE(IndexOf(2, 12).isValid());
    EXPECT_FALSE(IndexOf(1, 0).isValid());
}

TEST_F(NodeIndexesTest, WorksOnTheModelItself)
{
    view.setModel(&model);
    EXPECT_EQ(IndexOf(1, 11).data().toString(), "Woods");
    EXPECT_FALSE(IndexOf(7, 70).isValid());
}

} // namespace Orvane
