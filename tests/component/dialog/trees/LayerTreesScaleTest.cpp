// SPDX-License-Identifier: MIT
#include "component/dialog/trees/ChoosingCommands.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "support/PaintWatch.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

constexpr int GroupCount = 2000;
constexpr int LayersOfEach = 50;

/// Counts how often all rows are laid out.
class CountingView : public QTreeView
{
public:
    int layouts = 0;

    void doItemsLayout() override
    {
        ++layouts;
        QTreeView::doItemsLayout();
    }
};

std::vector<GroupEntry> ManyGroups(bool expanded)
{
    std::vector<GroupEntry> groups;
    qint32 layerID = 0;
    for (qint32 groupID = 1; groupID <= GroupCount; ++groupID) {
        GroupEntry& group = groups.emplace_back();
        group.groupID = groupID;
        group.text = QStringLiteral("Group %1").arg(groupID);
        group.expanded = expanded;
        for (int member = 0; member < LayersOfEach; ++member) {
            ++layerID;
            group.layers.push_back({layerID, 1, QStringLiteral("Layer %1").arg(layerID)});
        }
    }
    return groups;
}

std::vector<LayerEntry> ManyLayers()
{
    std::vector<LayerEntry> layers;
    for (qint32 layerID = 1; layerID <= GroupCount * LayersOfEach; ++layerID)
        layers.push_back({layerID, 1, QStringLiteral("Layer %1").arg(layerID)});
    return layers;
}

class LayerTreesScaleTest : public testing::Test
{
protected:
    CountingView view;
    LayerTreeList list{&view};

    std::vector<NodeSelection> chosen;

    void TearDown() override { view.close(); }

    /// Accepts and notes each choice.
    void AcceptChoices()
    {
        QObject::connect(&list, &LayerTreeList::NodesChosen, &list, [this](const NodeSelection& nodes) {
            chosen.push_back(nodes);
            list.Choose(nodes);
        });
    }

    void Show()
    {
        view.resize(300, 600);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    }

    /// Records a duration with the test's result; no check depends on it.
    template <typename Action> void Measure(const char* name, Action action)
    {
        QElapsedTimer timer;
        timer.start();
        action();
        RecordProperty(name, int(timer.nsecsElapsed() / 1000));
        std::printf("%s: %.1f ms\n", name, double(timer.nsecsElapsed()) / 1e6);
    }
};

} // namespace

TEST_F(LayerTreesScaleTest, AHundredThousandExpandedLayersAreLaidOutOnce)
{
    Show();
    std::vector<GroupEntry> groups = ManyGroups(true);
    view.layouts = 0;
    Measure("load", [&] { list.ShowGroups(std::move(groups)); });
    Measure("paint", [&] { view.grab(); });
    EXPECT_EQ(view.layouts, 1);
    EXPECT_TRUE(view.isExpanded(list.Model().index(GroupCount - 1, 0)));
}

TEST_F(LayerTreesScaleTest, ExpandingAndCollapsingAllSaysNothingAboutSingleGroups)
{
    Show();
    list.ShowGroups(ManyGroups(false));
    QSignalSpy expansions(&list, &LayerTreeList::ExpansionChanged);
    Measure("expand all", [&] { list.SetAllExpanded(true); });
    EXPECT_TRUE(view.isExpanded(list.Model().index(0, 0)));
    EXPECT_TRUE(list.GroupsWithout(true).empty());
    Measure("collapse all", [&] { list.SetAllExpanded(false); });
    EXPECT_EQ(list.GroupsWithout(true).size(), size_t(GroupCount));
    EXPECT_EQ(expansions.count(), 0);
}

TEST_F(LayerTreesScaleTest, AChangeOfAllLayersIsReportedInOneRangeForEachGroup)
{
    Show();
    list.ShowGroups(ManyGroups(true));
    std::vector<qint32> all;
    for (qint32 layerID = 1; layerID <= GroupCount * LayersOfEach; ++layerID)
        all.push_back(layerID);
    QSignalSpy changes(&list.Model(), &LayerTreeModel::dataChanged);
    Measure("change all", [&] { list.Model().SetQuickMode(all, 4); });
    EXPECT_EQ(changes.count(), GroupCount + 1);
}

TEST_F(LayerTreesScaleTest, ALayerAtTheEndIsFoundAndKeptAcrossAReload)
{
    Show();
    list.ShowGroups(ManyGroups(true));
    const NodeReference last{
        .isGroup = false, .groupID = GroupCount, .layerID = GroupCount * LayersOfEach, .image = 1};
    ASSERT_TRUE(list.MakeCurrent(last));
    list.ScrollToCurrent();
    view.layouts = 0;
    Measure("reload", [&] { list.ShowGroups(ManyGroups(true)); });
    EXPECT_EQ(view.layouts, 1);
    EXPECT_EQ(list.CurrentNode(), last);
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
}

TEST_F(LayerTreesScaleTest, AChoiceOfOneNodePaintsOnlyTheRowsThatChange)
{
    Show();
    list.ShowGroups(ManyGroups(false));
    list.MakeCurrent({.isGroup = true, .groupID = 2});
    Testing::PaintWatch painted(*view.viewport());
    list.MakeCurrent({.isGroup = true, .groupID = 5});
    EXPECT_TRUE(painted.Region().intersects(view.visualRect(list.Model().index(1, 0))));
    EXPECT_TRUE(painted.Region().intersects(view.visualRect(list.Model().index(4, 0))));
    EXPECT_FALSE(painted.Region().intersects(view.visualRect(list.Model().index(7, 0))));
}

TEST_F(LayerTreesScaleTest, LeavingManySingleNodesPaintsTheWholeListAtOnce)
{
    Show();
    list.ShowGroups(ManyGroups(false));
    AcceptChoices();
    QItemSelection everySecond;
    for (int row = 0; row < GroupCount; row += 2)
        everySecond.select(list.Model().index(row, 0), list.Model().index(row, 0));
    view.selectionModel()->select(everySecond, QItemSelectionModel::ClearAndSelect);
    ASSERT_EQ(list.Chosen().Nodes().size(), size_t(GroupCount / 2));
    Testing::PaintWatch painted(*view.viewport());
    list.MakeCurrent({.isGroup = true, .groupID = 2});
    EXPECT_EQ(painted.Region(), QRegion(view.viewport()->rect()));
}

TEST_F(LayerTreesScaleTest, AllNodesAreChosenAtOnceAndKeptAcrossAReload)
{
    Show();
    list.ShowGroups(ManyGroups(true));
    AcceptChoices();
    view.setCurrentIndex(list.Model().index(0, 0));
    chosen.clear();
    Measure("choose all groups", [&] { ChoosingCommands::SelectAll(view); });
    EXPECT_EQ(chosen.size(), 1U);
    EXPECT_EQ(list.Chosen().Nodes().size(), size_t(GroupCount));
    Measure("reload with all groups", [&] { list.ShowGroups(ManyGroups(true)); });
    EXPECT_EQ(list.Chosen().Nodes().size(), size_t(GroupCount));
    list.MakeCurrent({.isGroup = false, .groupID = 2, .layerID = LayersOfEach + 1});
    Measure("invert", [&] { ChoosingCommands::InvertSelection(view); });
    EXPECT_EQ(list.Chosen().Nodes().size(), size_t(GroupCount - 1 + LayersOfEach - 1));
    EXPECT_EQ(chosen.size(), 2U);
}

TEST_F(LayerTreesScaleTest, AHundredThousandLayersOfAFlatListAreChosenByKeys)
{
    Show();
    list.ShowLayers(ManyLayers());
    AcceptChoices();
    view.setCurrentIndex(list.Model().index(0, 0));
    chosen.clear();
    Measure("choose all layers", [&] { QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier); });
    ASSERT_EQ(chosen.size(), 1U);
    EXPECT_EQ(chosen.front().Nodes().size(), size_t(GroupCount * LayersOfEach));
    Measure("reload with all layers", [&] { list.ShowLayers(ManyLayers()); });
    EXPECT_EQ(list.Chosen().Nodes().size(), size_t(GroupCount * LayersOfEach));
    EXPECT_EQ(chosen.size(), 1U);
    Measure("one less", [&] { QTest::keyClick(&view, Qt::Key_Space, Qt::ControlModifier); });
    EXPECT_EQ(list.Chosen().Nodes().size(), size_t(GroupCount * LayersOfEach - 1));
}

} // namespace Orvane
