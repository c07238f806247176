// SPDX-License-Identifier: MIT
#include "component/dialog/window/FindField.h"

#include "component/common/EventGuard.h"
#include "component/common/Messages.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QTreeView>

namespace Orvane {

namespace {

bool IsForField(const QKeyEvent& event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const int key = event.key();
    return key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

FindField::FindField(const Widgets& widgets, LayerTrees& trees, LayerTrees::List list, QObject* parent)
    : QObject(parent), m_widgets(widgets), m_trees(trees), m_list(list)
{
    m_widgets.count->hide();
    QSizePolicy rest(QSizePolicy::Ignored, QSizePolicy::Fixed); // what the number leaves
    rest.setHorizontalStretch(1);
    m_widgets.field->setSizePolicy(rest);
    m_widgets.field->installEventFilter(this);
    connect(m_widgets.field, &QLineEdit::textChanged, this, &FindField::Find);
    connect(&m_trees, &LayerTrees::NodesChanged, this, &FindField::ShowCount);
}

bool FindField::IsShown() const
{
    return m_widgets.field->isVisible();
}

void FindField::TakeFocus()
{
    m_widgets.field->setFocus(Qt::ShortcutFocusReason);
    m_widgets.field->selectAll();
}

void FindField::Find(const QString& text)
{
    try {
        m_trees.Find(m_list, text);
    } catch (...) {
        ReportAfterEvent(this, m_widgets.field->window(), std::current_exception());
    }
}

void FindField::ShowCount()
{
    const bool isFinding = m_trees.IsFinding(m_list);
    const LayerTrees::FoundCount count = m_trees.CountFound(m_list);
    const QLocale locale;
    const QString text = isFinding
        ? TranslateMsg("^1 of ^2", locale.toString(count.found), locale.toString(count.all))
        : QString();
    m_widgets.count->setText(text);
    m_widgets.count->setVisible(isFinding);
    m_widgets.field->setMinimumWidth(m_widgets.field->minimumSizeHint().width());
    const bool isNothing = isFinding && count.found == 0;
    m_widgets.field->setAccessibleDescription(isNothing ? TranslateMsg("Nothing found.") : text);
}

bool FindField::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        // A click chooses a node, and then its list asks.
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::TabFocusReason && m_widgets.view->hasFocus())
            m_trees.LeaveUnfound(m_list);
        break;
    case QEvent::ShortcutOverride: // or a host's shortcut would take the key
        if (IsForField(*static_cast<QKeyEvent*>(event)))
            event->accept();
        break;
    case QEvent::KeyPress:
        if (IsForField(*static_cast<QKeyEvent*>(event)))
            return HandleKey(static_cast<QKeyEvent*>(event)->key());
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool FindField::HandleKey(int key)
{
    if (key != Qt::Key_Escape)
        GoToFirst();
    else if (m_widgets.field->text().isEmpty())
        m_widgets.view->setFocus();
    else
        m_widgets.field->clear();
    return true;
}

void FindField::GoToFirst()
{
    if (!m_trees.IsFinding(m_list) || m_trees.ChooseFirstFound(m_list))
        m_widgets.view->setFocus();
}

} // namespace Orvane
