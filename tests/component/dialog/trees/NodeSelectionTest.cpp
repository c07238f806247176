// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeSelection.h"

#include "component/dialog/trees/LayerTreeModel.h"

#include <QTreeView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace Orvane {

namespace {

/// Two groups: layers 1 and 2, layers 1 and 3.
class NodeSelectionTest : public testing::Test
{
protected:
    NodeSelectionTest()
    {
        Fill(
            {{10, "A", false, {{1, 1, "One"}, {2, 1, "Two"}}},
             {20, "B", false, {{1, 1, "One"}, {3, 1, "Three"}}}});
        view.setModel(&model);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    }

    void Fill(std::vector<GroupEntry> groups) { model.SetGroups(std::move(groups)); }

    void Select(int row, int group = -1)
    {
        const QModelIndex parent = group < 0 ? QModelIndex() : model.index(group, 0);
        view.selectionModel()->setCurrentIndex(model.index(row, 0, parent), QItemSelectionModel::Select);
    }

    static QStringList Keys(const std::vector<NodeReference>& nodes)
    {
        QStringList keys;
        for (const NodeReference& node : nodes)
            keys.append(MakeNodeKey(node));
        return keys;
    }

    LayerTreeModel model;
    QTreeView view;
};

} // namespace

TEST_F(NodeSelectionTest, HoldsTheSelectedNodesAndTheCurrentOne)
{
    Select(1, 0);
    Select(1);
    Select(1, 1);
    const NodeSelection nodes = NodeSelection::Of(view);
    EXPECT_THAT(Keys(nodes.Nodes()), ElementsAre("L00000100000002", "L00000200000003", "G00000200000000"));
    EXPECT_EQ(nodes.Current().layerID, 3);
    EXPECT_TRUE(nodes.IsMany());
}

TEST_F(NodeSelectionTest, TakesANodeThatIsSelectedForTheCurrentOne)
{
    Select(1, 0);
    view.selectionModel()->setCurrentIndex(model.index(1, 0), QItemSelectionModel::NoUpdate);
    EXPECT_EQ(NodeSelection::Of(view).Current().layerID, 2);
}

TEST_F(NodeSelectionTest, IsTheSameWhateverWasSelectedFirst)
{
    Select(0);
    Select(1, 1);
    const NodeSelection nodes = NodeSelection::Of(view);
    view.clearSelection();
    Select(1, 1);
    Select(0);
    EXPECT_TRUE(nodes.HasSameNodes(NodeSelection::Of(view)));
    Select(1);
    EXPECT_FALSE(nodes.HasSameNodes(NodeSelection::Of(view)));
    EXPECT_TRUE(NodeSelection::Of(view).HoldsAllOf(nodes));
    EXPECT_FALSE(nodes.HoldsAllOf(NodeSelection::Of(view)));
}

TEST_F(NodeSelectionTest, IsFoundAgainInNewRowsWithoutWhatHasGone)
{
    Select(0);
    Select(0, 1);
    Select(1, 1);
    const NodeSelection nodes = NodeSelection::Of(view);
    Fill({{20, "B", false, {{3, 1, "Three"}, {4, 1, "Four"}, {1, 1, "One"}}}});
    const QItemSelection ranges = nodes.RangesIn(view);
    ASSERT_EQ(ranges.size(), 2);
    EXPECT_EQ(ranges[0].topLeft().data().toString(), "Three");
    EXPECT_EQ(ranges[1].topLeft().data().toString(), "One");
}

TEST_F(NodeSelectionTest, PutsNeighboursIntoOneRange)
{
    Select(0, 0);
    Select(1, 0);
    EXPECT_EQ(NodeSelection::Of(view).RangesIn(view).size(), 1);
}

TEST_F(NodeSelectionTest, TellsWhichNodesAreMissing)
{
    Select(0);
    Select(1, 1);
    const NodeSelection nodes = NodeSelection::Of(view);
    EXPECT_THAT(
        Keys(nodes.NotAmong({{.isGroup = true, .groupID = 10}, {.isGroup = true, .groupID = 20}})),
        ElementsAre("L00000200000003"));
}

TEST_F(NodeSelectionTest, IsEmptyWithoutSelection)
{
    EXPECT_TRUE(NodeSelection::Of(view).IsEmpty());
    EXPECT_TRUE(NodeSelection().IsEmpty());
    EXPECT_FALSE(NodeSelection(NodeReference{.layerID = 1}).IsEmpty());
}

} // namespace Orvane
