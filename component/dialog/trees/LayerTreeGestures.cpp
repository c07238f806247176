// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeGestures.h"

#include "component/common/EventGuard.h"
#include "component/common/Messages.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTreeView>

#include <utility>

namespace Orvane {

namespace {

QPoint MenuPosition(const QTreeView& view, const QContextMenuEvent& event)
{
    const QModelIndex current = view.currentIndex();
    if (event.reason() != QContextMenuEvent::Keyboard || !current.isValid())
        return event.globalPos();
    return view.viewport()->mapToGlobal(view.visualRect(current).center());
}

} // namespace

LayerTreeGestures::LayerTreeGestures(QTreeView* view, std::function<bool()> mayRename, QObject* parent)
    : QObject(parent), m_view(view), m_mayRename(std::move(mayRename))
{
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
}

bool LayerTreeGestures::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        return watched == m_view && HandleKey(*static_cast<QKeyEvent*>(event));
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    GuardEvent(m_view, [&] { OpenMenu(*static_cast<QContextMenuEvent*>(event)); });
    return true;
}

bool LayerTreeGestures::HandleKey(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Delete || event.modifiers() != Qt::NoModifier)
        return false;
    emit DeleteRequested();
    return true;
}

void LayerTreeGestures::OpenMenu(const QContextMenuEvent& event)
{
    auto* menu = new QMenu(m_view);
    menu->setObjectName(QStringLiteral("mnuTree"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FillMenu(*menu);
    menu->popup(MenuPosition(*m_view, event));
}

void LayerTreeGestures::FillMenu(QMenu& menu)
{
    QAction* rename = menu.addAction(TranslateMsg("Edit Name"), this, &LayerTreeGestures::RenameRequested);
    rename->setShortcut(Qt::Key_F2);
    rename->setEnabled(m_mayRename());
    if (!m_view->rootIsDecorated())
        return;
    menu.addSeparator();
    menu.addAction(TranslateMsg("Expand All"), this, [this] { emit ExpandAllRequested(true); });
    menu.addAction(TranslateMsg("Collapse All"), this, [this] { emit ExpandAllRequested(false); });
}

} // namespace Orvane
