// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QContextMenuEvent;
class QKeyEvent;
class QMenu;
class QTreeView;

namespace Orvane {

/// What a user does to a tree besides choosing and renaming nodes: the context menu, by mouse and by key, and
/// the Delete key.
class LayerTreeGestures : public QObject
{
    Q_OBJECT

public:
    /// view: not owned. mayRename: called each time the menu opens; returns whether the selected node may be
    /// renamed; may raise.
    LayerTreeGestures(QTreeView* view, std::function<bool()> mayRename, QObject* parent = nullptr);

signals:
    void RenameRequested();
    void ExpandAllRequested(bool expanded);
    void DeleteRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HandleKey(const QKeyEvent& event);
    void OpenMenu(const QContextMenuEvent& event);
    void FillMenu(QMenu& menu);

    QTreeView* m_view;
    std::function<bool()> m_mayRename;
};

} // namespace Orvane
