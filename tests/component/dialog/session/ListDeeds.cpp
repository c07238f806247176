// SPDX-License-Identifier: MIT
#include "component/dialog/session/ListUser.h"
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using namespace Paper;

void ClickTab(SessionFixture& session)
{
    const int tab = session.dice.Chance(20) ? 3 : 1 + session.dice.Below(2);
    const auto answer = session.DecideAnswer();
    session.ClickTab(tab);
    session.Settle();
    if (tab != session.dialog.tab)
        session.dialog.ShowTab(tab, answer);
    else
        session.dialog.ClickShownTab(answer);
}

void ClickNode(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    QTreeView& tree = ShownTree(session);
    const auto nodes = VisibleNodes(tree);
    if (nodes.empty())
        return;
    const QModelIndex index = session.dice.OneOf(nodes);
    const Node node = SessionFixture::NodeAt(index);
    const auto answer = session.DecideAnswer();
    tree.scrollTo(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(index).center());
    session.Settle();
    session.dialog.Choose(node, answer);
}

void StepThroughNodes(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    QTreeView& tree = ShownTree(session);
    const bool isDown = session.dice.Chance(50);
    const QModelIndex from = tree.currentIndex();
    const QModelIndex to = isDown ? tree.indexBelow(from) : tree.indexAbove(from);
    if (tree.visualRect(from).isEmpty() || !to.isValid())
        return;
    const Node node = SessionFixture::NodeAt(to);
    const auto answer = session.DecideAnswer();
    QTest::keyClick(&tree, isDown ? Qt::Key_Down : Qt::Key_Up);
    session.Settle();
    session.dialog.Choose(node, answer);
}

void ToggleGroup(SessionFixture& session)
{
    QTreeView& tree = session.Tree(Groups);
    if (session.dialog.tab != 1 || tree.model()->rowCount() == 0)
        return;
    const QModelIndex index = tree.model()->index(session.dice.Below(tree.model()->rowCount()), 0);
    tree.scrollTo(index);
    const QPoint branch(
        tree.visualRect(index).left() - tree.indentation() / 2, tree.visualRect(index).center().y());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, branch);
    session.Settle();
    const auto group = session.map.groups.find(SessionFixture::NodeAt(index).groupID);
    if (group != session.map.groups.end())
        group->second.isExpanded = !group->second.isExpanded;
}

void ExpandOrCollapseAll(SessionFixture& session)
{
    QTreeView& tree = session.Tree(Groups);
    if (session.dialog.tab != 1)
        return;
    QMenu* menu = OpenNodeMenu(session);
    ASSERT_TRUE(menu);
    const bool expands = session.dice.Chance(50);
    menu->setActiveAction(menu->actions().at(expands ? 2 : 3));
    QTest::keyClick(menu, Qt::Key_Return);
    session.Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (int row = 0; row < tree.model()->rowCount(); ++row) {
        const auto group
            = session.map.groups.find(SessionFixture::NodeAt(tree.model()->index(row, 0)).groupID);
        if (group != session.map.groups.end())
            group->second.isExpanded = expands;
    }
}

bool MayRename(const SessionFixture& session, const Node& node)
{
    if (node.isGroup)
        return session.map.groups.count(node.groupID) > 0;
    const auto layer = session.map.layers.find(node.layerID);
    return layer != session.map.layers.end() && !layer->second.isSystem;
}

void Rename(SessionFixture& session)
{
    const auto node = session.dialog.CurrentNode();
    if (session.dialog.tab == 3 || !node)
        return;
    QTreeView& tree = ShownTree(session);
    tree.scrollTo(tree.currentIndex());
    session.Settle();
    const bool wasExpanded = tree.isExpanded(tree.currentIndex().parent());
    if (const auto group = session.map.groups.find(node->groupID);
        !node->isGroup && group != session.map.groups.end() && wasExpanded)
        group->second.isExpanded = true; // scrolling to a layer opens its group
    QTest::keyClick(&tree, Qt::Key_F2);
    auto* editor = tree.findChild<QLineEdit*>("txtNodeName");
    EXPECT_EQ(editor != nullptr, MayRename(session, *node));
    if (!editor)
        return;
    const QString name = session.dice.Chance(15) ? QString() : session.NewName();
    const bool accepts = session.dice.Chance(80);
    const QString before = editor->text();
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, name);
    QTest::keyClick(editor, accepts ? Qt::Key_Return : Qt::Key_Escape);
    session.Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (!accepts || name == before)
        return;
    if (name.isEmpty())
        session.dialog.Tell("Invalid Name");
    else
        session.dialog.Rename(*node, name);
}

void PressNew(SessionFixture& session)
{
    if (session.dialog.tab != 2)
        return;
    LayerSpec layer;
    layer.id = session.NewID();
    layer.name = session.NewName();
    layer.code = qint32(100 + layer.id);
    session.host.layersToCreate = {layer};
    const auto answer = session.DecideAnswer();
    session.Click("cmdNewLayer");
    session.Settle();
    session.map.layers[layer.id] = ReadMap(session.host.PlainDatabase()).layers.at(layer.id);
    session.dialog.lists[Groups].isStale = true;
    session.dialog.AddNewLayer(layer.id, answer);
}

void PressDelete(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    if (session.dialog.tab == 2 && session.dice.Chance(50))
        session.Click("cmdDeleteLayer");
    else
        QTest::keyClick(&ShownTree(session), Qt::Key_Delete);
    session.Settle();
    if (session.dialog.tab == 2)
        session.dialog.DeleteLayer();
}

} // namespace

std::vector<Deed> ListDeeds()
{
    return {
        {"click a tab", 6, ClickTab},
        {"click a node", 14, ClickNode},
        {"step through the nodes", 6, StepThroughNodes},
        {"expand or collapse a group", 3, ToggleGroup},
        {"expand or collapse all", 1, ExpandOrCollapseAll},
        {"rename a node", 4, Rename},
        {"create a layer", 1, PressNew},
        {"delete a layer", 1, PressDelete}};
}

} // namespace Orvane::Testing
