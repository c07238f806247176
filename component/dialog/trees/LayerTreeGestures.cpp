// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeGestures.h"

#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "component/dialog/trees/ChoosingCommands.h"
#include "component/dialog/trees/NodeMenu.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTreeView>

#include <memory>
#include <utility>

namespace Orvane {

namespace {

QString WhyNotRenameText()
{
    return TranslateMsg("One layer or group at a time can be renamed, but no system layer.");
}

QPoint MenuPosition(const QTreeView& view, bool isByKey, const QPoint& place)
{
    const QModelIndex current = view.currentIndex();
    if (!isByKey || !current.isValid())
        return place;
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
    GuardEvent(m_view, [&] { RequestMenu(*static_cast<QContextMenuEvent*>(event)); });
    return true;
}

bool LayerTreeGestures::HandleKey(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::SelectAll)) {
        ChoosingCommands::SelectAll(*m_view);
        return true;
    }
    if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier) {
        GuardEvent(m_view, [this] { OpenMenuByKey(); });
        return true;
    }
    if (event.key() != Qt::Key_Delete || event.modifiers() != Qt::NoModifier)
        return false;
    emit DeleteRequested();
    return true;
}

// X11 has no such key for menus, and Qt makes none of it there.
void LayerTreeGestures::OpenMenuByKey()
{
    const QPoint place = m_view->viewport()->rect().topLeft();
    RequestMenu({QContextMenuEvent::Keyboard, place, m_view->viewport()->mapToGlobal(place)});
}

void LayerTreeGestures::RequestMenu(const QContextMenuEvent& event)
{
    const bool isByKey = event.reason() == QContextMenuEvent::Keyboard;
    const std::function<void()> open
        = [this, isByKey, place = event.globalPos()] { OpenMenu(isByKey, place); };
    m_opener ? m_opener(open) : open();
}

void LayerTreeGestures::OpenMenu(bool isByKey, const QPoint& place)
{
    auto menu = std::make_unique<QMenu>(m_view);
    menu->setObjectName(QStringLiteral("mnuTree"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    FillMenu(*menu);
    emit MenuOpening(menu.get());
    menu.release()->popup(MenuPosition(*m_view, isByKey, place)); // deletes itself
}

void LayerTreeGestures::FillMenu(QMenu& menu)
{
    QAction* rename = menu.addAction(TranslateMsg("Edit Name"), this, &LayerTreeGestures::RenameRequested);
    rename->setShortcut(Qt::Key_F2);
    SetWhyNot(*rename, m_mayRename() ? QString() : WhyNotRenameText());
    const bool hasGroups = m_view->rootIsDecorated();
    if (hasGroups) {
        menu.addSeparator();
        menu.addAction(TranslateMsg("Expand All"), this, [this] { emit ExpandAllRequested(true); });
        menu.addAction(TranslateMsg("Collapse All"), this, [this] { emit ExpandAllRequested(false); });
    }
    AddChoosing(menu, hasGroups);
    if (m_showsSamples)
        AddSamples(menu);
}

void LayerTreeGestures::AddChoosing(QMenu& menu, bool hasGroups)
{
    using namespace ChoosingCommands;
    menu.addSeparator();
    if (hasGroups) {
        QAction* group = menu.addAction(
            TranslateMsg("Select All in Group"), this, [this] { SelectAllInGroup(*m_view); });
        const bool isPossible = m_view->currentIndex().isValid();
        SetWhyNot(*group, isPossible ? QString() : TranslateMsg("Select a layer or a group first."));
    }
    QAction* all = menu.addAction(TranslateMsg("Select All"), this, [this] { SelectAll(*m_view); });
    all->setShortcut(QKeySequence::SelectAll);
    menu.addAction(TranslateMsg("Invert Selection"), this, [this] { InvertSelection(*m_view); });
}

void LayerTreeGestures::AddSamples(QMenu& menu)
{
    menu.addSeparator();
    QAction* samples = menu.addAction(TranslateMsg("Show Line and Fill"));
    samples->setCheckable(true);
    samples->setChecked(m_showsSamples());
    connect(samples, &QAction::triggered, this, &LayerTreeGestures::SamplesRequested);
}

} // namespace Orvane
