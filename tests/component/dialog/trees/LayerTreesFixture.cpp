// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesFixture.h"

#include "component/common/Component.h"
#include "component/dialog/trees/LayerTreeModel.h"

#include <QHBoxLayout>
#include <QtTest>

namespace Orvane::Testing {

LayerTreesTest::LayerTreesTest()
{
    host.AddLayer({.id = 11, .name = "Roads"});
    host.AddLayer({.id = 12, .name = "Rails"});
    host.AddLayer({.id = 21, .name = "Rivers"});
    host.AddLayer({.id = 31, .name = "Base", .systemLayer = true});
    host.AddGroup({.id = 1, .name = QString("Transport"), .ordering = 1, .members = {11, 12}});
    host.AddGroup({.id = 2, .name = QString("Water"), .ordering = 2, .expanded = true, .members = {21, 11}});
    UseClient(host);
    trees.SetPendingChangesQuestion([this] { ++asked; });
    QObject::connect(&trees, &LayerTrees::CurrentNodeChanged, &window, [this] { ++moved; });
}

LayerTreesTest::~LayerTreesTest()
{
    Component::Get().SetHost(nullptr, nullptr);
}

void LayerTreesTest::UseClient(IStyleEditorClient& client)
{
    Component::Get().SetHost(&client, &host.Shell());
}

void LayerTreesTest::Open(List list)
{
    auto* layout = new QHBoxLayout(&window);
    layout->addWidget(&groups);
    layout->addWidget(&layers);
    window.resize(600, 300);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    trees.LoadGroups();
    trees.LoadLayers();
    trees.ShowList(list);
    (list == List::Groups ? groups : layers).setFocus();
    Settle();
    host.ClearLog();
}

QStringList LayerTreesTest::Lines(QTreeView& view) const
{
    QStringList lines;
    const QModelIndex first = view.model()->index(0, 0);
    for (QModelIndex index = first; index.isValid(); index = view.indexBelow(index))
        lines.append((index.parent().isValid() ? QStringLiteral("  ") : QString()) + index.data().toString());
    return lines;
}

QModelIndex LayerTreesTest::Node(QTreeView& view, const QString& text, const QString& group) const
{
    const QModelIndex parent = group.isEmpty() ? QModelIndex() : Node(view, group);
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
        const QModelIndex index = view.model()->index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
    }
    ADD_FAILURE() << "no node " << qPrintable(text) << " under '" << qPrintable(group) << "'";
    return {};
}

QString LayerTreesTest::ImageOf(QTreeView& view, const QString& text, const QString& group) const
{
    return Node(view, text, group).data(LayerTreeModel::ImageKeyRole).toString();
}

QString LayerTreesTest::Selected(QTreeView& view) const
{
    QStringList texts;
    for (const QModelIndex& index : view.selectionModel()->selectedIndexes())
        texts.append(index.data().toString());
    return texts.join(QLatin1Char(','));
}

void LayerTreesTest::Click(QTreeView& view, const QString& text, const QString& group)
{
    const QRect place = view.visualRect(Node(view, text, group));
    ASSERT_TRUE(place.isValid()) << qPrintable(text) << " is not in sight";
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place.center());
}

void LayerTreesTest::Press(QTreeView& view, Qt::Key key)
{
    QTest::keyClick(&view, key);
}

void LayerTreesTest::Type(QTreeView& view, const QString& keys)
{
    QTest::keyClicks(&view, keys);
}

QLineEdit* LayerTreesTest::NameEditor(QTreeView& view) const
{
    return view.findChild<QLineEdit*>(QStringLiteral("txtNodeName"));
}

void LayerTreesTest::Rename(QTreeView& view, const QString& name)
{
    Press(view, Qt::Key_F2);
    QLineEdit* editor = NameEditor(view);
    ASSERT_TRUE(editor) << "no editor for " << qPrintable(Selected(view));
    editor->selectAll();
    name.isEmpty() ? QTest::keyClick(editor, Qt::Key_Delete) : QTest::keyClicks(editor, name);
    QTest::keyClick(editor, Qt::Key_Return);
    Settle();
}

void LayerTreesTest::Settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

QString LayerTreesTest::CurrentKey() const
{
    const std::optional<NodeReference> node = trees.CurrentNode();
    return node ? MakeNodeKey(*node) : QString();
}

} // namespace Orvane::Testing
