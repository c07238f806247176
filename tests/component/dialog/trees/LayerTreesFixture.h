// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/LayerTrees.h"
#include "hosts/MemoryHost.h"

#include <QLineEdit>
#include <QTreeView>
#include <QWidget>

#include <gtest/gtest.h>

namespace Orvane::Testing {

/// Two trees in a window over a host in memory:
///
///     Transport (1): Roads (11), Rails (12)
///     Water (2), expanded: Rivers (21), Roads (11)
///     not in a group: Base (31), a system layer
class LayerTreesTest : public testing::Test
{
protected:
    using List = LayerTrees::List;

    LayerTreesTest();
    ~LayerTreesTest() override;

    /// Loads both lists and makes one of them the active one.
    void Open(List list);
    /// All calls go through this client from now on, e.g. one that fails.
    void UseClient(IStyleEditorClient& client);

    /// What a user sees from top to bottom, the layers of groups indented by two blanks.
    QStringList Lines(QTreeView& view) const;
    /// The first node of that text, under the group of that text if one is named.
    QModelIndex Node(QTreeView& view, const QString& text, const QString& group = {}) const;
    QString ImageOf(QTreeView& view, const QString& text, const QString& group = {}) const;
    /// The texts of what the view shows as selected.
    QString Selected(QTreeView& view) const;

    void Click(QTreeView& view, const QString& text, const QString& group = {});
    void Press(QTreeView& view, Qt::Key key);
    void Type(QTreeView& view, const QString& keys);
    /// The open name editor; nullptr when there is none.
    QLineEdit* NameEditor(QTreeView& view) const;
    /// Presses F2, types the name and presses Enter.
    void Rename(QTreeView& view, const QString& name);
    /// Lets queued work run.
    void Settle();

    QString CurrentKey() const;

    MemoryHost host;
    QWidget window;
    QTreeView groups;
    QTreeView layers;
    LayerTrees trees{&groups, &layers};
    int asked = 0; ///< how often the question about pending changes was asked
    int moved = 0; ///< how often CurrentNodeChanged came
};

} // namespace Orvane::Testing
