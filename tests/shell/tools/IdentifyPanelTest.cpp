// SPDX-License-Identifier: MIT
#include "shell/tools/IdentifyPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class IdentifyPanelTest : public testing::Test
{
protected:
    IdentifyPanelTest()
    {
        m_window.addDockWidget(Qt::RightDockWidgetArea, &m_panel);
        m_window.show();
    }

    QTreeWidget& Tree() { return *m_panel.findChild<QTreeWidget*>("tvIdentified"); }

    QMainWindow m_window;
    IdentifyPanel m_panel{&m_window};
    const std::vector<IdentifiedFeature> m_features
        = {{{1, 12}, "Roads", {{"name", "Main Street"}, {"width", "", true}}}, {{2, 5}, "Lakes", {}}};
};

} // namespace

TEST_F(IdentifyPanelTest, ListsEachFeatureWithItsAttributesAndOpensTheFirst)
{
    m_panel.Show(m_features, {});
    ASSERT_EQ(Tree().topLevelItemCount(), 2);
    const QTreeWidgetItem* roads = Tree().topLevelItem(0);
    EXPECT_EQ(roads->text(0), "Roads");
    EXPECT_EQ(roads->text(1), "Feature 12");
    EXPECT_TRUE(roads->isExpanded());
    EXPECT_EQ(roads->child(0)->text(1), "Main Street");
    EXPECT_EQ(roads->child(1)->text(1), "no value");
    EXPECT_EQ(Tree().currentItem(), roads);
    EXPECT_TRUE(Tree().isVisible());
}

TEST_F(IdentifyPanelTest, ListsTheValuesOfARaster)
{
    m_panel.Show(
        {{{1, 12}, "Roads", {}},
         {{3, NoFeatureID}, "Heights", {{"Band 1", "512.5 m"}, {"Band 2", "no data", true}}, true}},
        {});
    const QTreeWidgetItem* heights = Tree().topLevelItem(1);
    EXPECT_TRUE(heights->isExpanded());
    EXPECT_EQ(heights->text(1), "Raster");
    EXPECT_EQ(heights->child(0)->text(1), "512.5 m");
    EXPECT_EQ(heights->child(1)->text(1), "no data");
}

TEST_F(IdentifyPanelTest, TellsWhichFeatureIsCurrent)
{
    std::vector<FeatureKey> current;
    QObject::connect(&m_panel, &IdentifyPanel::CurrentChanged, &m_window, [&](const FeatureKey& key) {
        current.push_back(key);
    });
    m_panel.Show(m_features, {});
    EXPECT_EQ(current.back(), (FeatureKey{1, 12}));
    Tree().setCurrentItem(Tree().topLevelItem(1));
    EXPECT_EQ(current.back(), (FeatureKey{2, 5}));
    Tree().setCurrentItem(Tree().topLevelItem(0)->child(0));
    EXPECT_EQ(current.back(), (FeatureKey{1, 12}));
}

TEST_F(IdentifyPanelTest, ClosedOrEmptyItHasNothingCurrent)
{
    QSignalSpy nothing(&m_panel, &IdentifyPanel::NothingCurrent);
    m_panel.Show(m_features, {});
    m_panel.hide();
    EXPECT_EQ(nothing.size(), 1);
    m_panel.show();
    nothing.clear();
    m_panel.Clear();
    EXPECT_GE(nothing.size(), 1);
}

TEST_F(IdentifyPanelTest, SaysWhyNothingIsListed)
{
    m_panel.Show(m_features, {});
    m_panel.Show({}, "Roads is here but not enquirable.");
    EXPECT_FALSE(Tree().isVisible());
    bool said = false;
    for (const QLabel* label : m_panel.findChildren<QLabel*>())
        said |= label->isVisible() && label->text() == "Roads is here but not enquirable.";
    EXPECT_TRUE(said);
}

TEST_F(IdentifyPanelTest, TheCopyKeyCopiesTheValue)
{
    m_panel.Show(m_features, {});
    Tree().setCurrentItem(Tree().topLevelItem(0)->child(0));
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    Tree().setFocus();
    QTest::keyClick(&Tree(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Main Street");
}

} // namespace Orvane
