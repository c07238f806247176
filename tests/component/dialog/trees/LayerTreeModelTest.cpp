// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace Orvane {

namespace {

LayerEntry Layer(qint32 id, qint16 quickMode = 1, const QString& text = {})
{
    return {id, quickMode, text.isEmpty() ? QStringLiteral("Layer %1").arg(id) : text};
}

GroupEntry Group(qint32 id, std::vector<LayerEntry> layers)
{
    GroupEntry group;
    group.groupID = id;
    group.text = QStringLiteral("Group %1").arg(id);
    group.layers = std::move(layers);
    return group;
}

NodeReference GroupNode(qint32 id)
{
    return {.isGroup = true, .groupID = id};
}

NodeReference LayerNode(qint32 groupID, qint32 layerID)
{
    return {.isGroup = false, .groupID = groupID, .layerID = layerID};
}

/// A model checked by Qt's model tester, whose messages are warnings and so fail the test.
class LayerTreeModelTest : public testing::Test
{
protected:
    LayerTreeModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};

    void FillGroups()
    {
        model.SetGroups(
            {Group(10, {Layer(1), Layer(2, 2)}), Group(20, {Layer(2, 2)}), Group(30, {Layer(3), Layer(4)})});
    }

    QString KeyOf(const QModelIndex& index) const
    {
        return index.data(LayerTreeModel::NodeKeyRole).toString();
    }

    QString ImageOf(const NodeReference& node) const
    {
        return model.IndexOf(node).data(LayerTreeModel::ImageKeyRole).toString();
    }

    QString TextOf(const NodeReference& node) const { return model.IndexOf(node).data().toString(); }
};

} // namespace

TEST_F(LayerTreeModelTest, ListsGroupsAndUnderEachItsLayers)
{
    FillGroups();
    ASSERT_EQ(model.rowCount(), 3);
    const QModelIndex first = model.index(0, 0);
    EXPECT_EQ(first.data().toString(), "Group 10");
    ASSERT_EQ(model.rowCount(first), 2);
    EXPECT_EQ(model.index(1, 0, first).data().toString(), "Layer 2");
    EXPECT_EQ(model.parent(model.index(1, 0, first)), first);
}

TEST_F(LayerTreeModelTest, ListsLayersWithoutGroupsAtTheTop)
{
    model.SetLayers({Layer(1), Layer(2)});
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(KeyOf(model.index(1, 0)), "L00000000000002");
    EXPECT_FALSE(model.hasChildren(model.index(0, 0)));
}

TEST_F(LayerTreeModelTest, GivesALayerUnderTwoGroupsTwoKeys)
{
    FillGroups();
    EXPECT_EQ(KeyOf(model.index(1, 0, model.index(0, 0))), "L00000100000002");
    EXPECT_EQ(KeyOf(model.index(0, 0, model.index(1, 0))), "L00000200000002");
    EXPECT_EQ(KeyOf(model.index(2, 0)), "G00000300000000");
}

TEST_F(LayerTreeModelTest, AnswersItsRolesForALayer)
{
    FillGroups();
    const QModelIndex layer = model.IndexOf(LayerNode(20, 2));
    EXPECT_EQ(layer.data(LayerTreeModel::IsGroupRole).toBool(), false);
    EXPECT_EQ(layer.data(LayerTreeModel::GroupIDRole).toInt(), 20);
    EXPECT_EQ(layer.data(LayerTreeModel::LayerIDRole).toInt(), 2);
    EXPECT_EQ(layer.data(LayerTreeModel::QuickModeRole).toInt(), 2);
    EXPECT_EQ(layer.data(LayerTreeModel::ReferenceRole).value<NodeReference>(), model.Reference(layer));
    EXPECT_EQ(layer.data(LayerTreeModel::ImageKeyRole).toString(), "L2");
    EXPECT_FALSE(layer.data(LayerTreeModel::ImageKeyRole + 100).isValid());
}

TEST_F(LayerTreeModelTest, SaysTheQuickModeInWordsAndTakesNoNameForMarkup)
{
    model.SetLayers({Layer(1, 4, "<b>Roads</b>")});
    EXPECT_EQ(model.index(0, 0).data(Qt::AccessibleDescriptionRole).toString(), "Hidden");
    EXPECT_TRUE(
        model.index(0, 0).data(Qt::ToolTipRole).toString().contains("&lt;b&gt;Roads&lt;/b&gt;<br>Hidden"));
}

TEST_F(LayerTreeModelTest, TheToolTipExplainsTheMarksOfALayersName)
{
    model.SetLayers({Layer(1, 1, "(OBS)Roads "), Layer(2, 1, "(SUP)Rivers "), Layer(3, 1, "Parcels")});
    const auto tip = [this](int row) { return model.index(row, 0).data(Qt::ToolTipRole).toString(); };
    EXPECT_TRUE(tip(0).contains("Normal<br>(OBS): obscured")) << qPrintable(tip(0));
    EXPECT_FALSE(tip(0).contains("(SUP)"));
    EXPECT_TRUE(tip(1).contains("Normal<br>(SUP): suppressed")) << qPrintable(tip(1));
    EXPECT_TRUE(tip(2).endsWith("Normal</qt>")) << qPrintable(tip(2));
}

TEST_F(LayerTreeModelTest, MarksLayersAsLeavesAndGroupsNot)
{
    FillGroups();
    EXPECT_FALSE(model.flags(model.IndexOf(GroupNode(10))) & Qt::ItemNeverHasChildren);
    EXPECT_TRUE(model.flags(model.IndexOf(LayerNode(10, 1))) & Qt::ItemNeverHasChildren);
}

TEST_F(LayerTreeModelTest, FindsNodesByIdentityWhateverTheirImage)
{
    FillGroups();
    NodeReference node = LayerNode(20, 2);
    node.image = 4;
    EXPECT_EQ(KeyOf(model.IndexOf(node)), "L00000200000002");
    EXPECT_FALSE(model.IndexOf(LayerNode(20, 1)).isValid());
    EXPECT_FALSE(model.IndexOf(GroupNode(99)).isValid());
}

TEST_F(LayerTreeModelTest, GivesAGroupTheImageThatItsLayersShareAndZeroWhereTheyDiffer)
{
    FillGroups();
    EXPECT_EQ(ImageOf(GroupNode(10)), "G0");
    EXPECT_EQ(ImageOf(GroupNode(20)), "G2");
    EXPECT_EQ(ImageOf(GroupNode(30)), "G1");
}

TEST_F(LayerTreeModelTest, ChangesAllNodesOfALayerAndTheImagesOfItsGroups)
{
    FillGroups();
    model.SetQuickMode({2}, 1);
    EXPECT_EQ(ImageOf(LayerNode(10, 2)), "L1");
    EXPECT_EQ(ImageOf(LayerNode(20, 2)), "L1");
    EXPECT_EQ(ImageOf(GroupNode(10)), "G1");
    EXPECT_EQ(ImageOf(GroupNode(20)), "G1");
}

TEST_F(LayerTreeModelTest, LeavesAGroupImageAloneThatStaysMixed)
{
    FillGroups();
    QSignalSpy changes(&model, &LayerTreeModel::dataChanged);
    model.SetQuickMode({1}, 4);
    EXPECT_EQ(ImageOf(GroupNode(10)), "G0");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(LayerTreeModelTest, ReportsNothingWhereNothingChanges)
{
    FillGroups();
    QSignalSpy changes(&model, &LayerTreeModel::dataChanged);
    model.SetQuickMode({2, 77}, 2);
    model.SetLayerText(2, "Layer 2");
    model.SetGroupText(10, "Group 10");
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(LayerTreeModelTest, ReportsManyChangesAsOneRangeForEachParent)
{
    std::vector<LayerEntry> layers;
    std::vector<qint32> layerIDs;
    for (qint32 id = 1; id <= 1000; ++id) {
        layers.push_back(Layer(id));
        layerIDs.push_back(id);
    }
    model.SetGroups({Group(10, layers), Group(20, layers), Group(30, {Layer(2000)})});
    QSignalSpy changes(&model, &LayerTreeModel::dataChanged);
    model.SetQuickMode(layerIDs, 4);
    ASSERT_EQ(changes.count(), 3); // two groups' layers, and the groups
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 999);
    EXPECT_EQ(changes[2][1].toModelIndex(), model.index(1, 0));
}

TEST_F(LayerTreeModelTest, ReportsOneRangeForTheWholeFlatList)
{
    model.SetLayers({Layer(1), Layer(2), Layer(3), Layer(4)});
    QSignalSpy changes(&model, &LayerTreeModel::dataChanged);
    model.SetQuickMode({4, 2}, 2);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 3);
}

TEST_F(LayerTreeModelTest, ShowsANewTextOnAllNodesOfTheLayer)
{
    FillGroups();
    model.SetLayerText(2, "Rivers");
    EXPECT_EQ(TextOf(LayerNode(10, 2)), "Rivers");
    EXPECT_EQ(TextOf(LayerNode(20, 2)), "Rivers");
    EXPECT_EQ(TextOf(LayerNode(10, 1)), "Layer 1");
}

TEST_F(LayerTreeModelTest, ShowsManyNewTextsInOneCommand)
{
    FillGroups();
    QSignalSpy changes(&model, &LayerTreeModel::dataChanged);
    model.SetLayerTexts({{1, "Layer 1"}, {2, "Rivers"}, {77, "Nowhere"}});
    EXPECT_EQ(TextOf(LayerNode(10, 2)), "Rivers");
    EXPECT_EQ(TextOf(LayerNode(20, 2)), "Rivers");
    EXPECT_EQ(changes.count(), 2); // one for each group
}

TEST_F(LayerTreeModelTest, KnowsWhichLayersHaveANode)
{
    FillGroups();
    EXPECT_EQ(model.LayersAmong({1, 77}), QSet<qint32>({1}));
}

TEST_F(LayerTreeModelTest, ShowsANewTextOnItsGroupOnly)
{
    FillGroups();
    model.SetGroupText(20, "Water");
    EXPECT_EQ(TextOf(GroupNode(20)), "Water");
    EXPECT_EQ(TextOf(GroupNode(10)), "Group 10");
}

TEST_F(LayerTreeModelTest, InsertsALayerAtItsPlaceAndFindsAllAfterwards)
{
    model.SetLayers({Layer(1, 1, "Alpha"), Layer(2, 1, "Gamma")});
    ASSERT_TRUE(model.IndexOf(LayerNode(0, 2)).isValid());
    EXPECT_EQ(model.InsertLayer(Layer(3, 1, "Beta")).row(), 1);
    EXPECT_EQ(model.IndexOf(LayerNode(0, 3)).row(), 1);
    EXPECT_EQ(model.IndexOf(LayerNode(0, 2)).row(), 2);
}

TEST_F(LayerTreeModelTest, ForgetsAllNodesWhenItShowsNoLayers)
{
    FillGroups();
    EXPECT_TRUE(model.HasNodes());
    model.SetLayers({});
    EXPECT_FALSE(model.HasNodes());
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.IndexOf(LayerNode(10, 1)).isValid());
}

TEST_F(LayerTreeModelTest, ReplacesNodesByAsManyOthersWithoutMixingThemUp)
{
    model.SetLayers({Layer(1), Layer(2)});
    ASSERT_TRUE(model.IndexOf(LayerNode(0, 1)).isValid());
    model.SetLayers({Layer(3), Layer(1)});
    EXPECT_EQ(model.IndexOf(LayerNode(0, 1)).row(), 1);
    EXPECT_FALSE(model.IndexOf(LayerNode(0, 2)).isValid());
}

} // namespace Orvane
