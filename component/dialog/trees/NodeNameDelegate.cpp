// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeNameDelegate.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "component/dialog/trees/NodeIndexes.h"
#include "component/dialog/trees/NodeStore.h"
#include "messages/NameInText.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <optional>

namespace Orvane {

namespace {

constexpr qsizetype LongestListed = 300; // characters; more than any list is wide

/// An editor that stores the name with which it started.
class NameEditor : public QLineEdit
{
public:
    NameEditor(const QString& name, QWidget* parent) : QLineEdit(name, parent), m_name(name)
    {
        setObjectName(QStringLiteral("txtNodeName"));
        setAccessibleName(TranslateMsg("Edit Name"));
        setFrame(false);
        setAutoFillBackground(true);
    }

    bool IsChanged() const { return text() != m_name; }
    void TakeAsUnchanged() { m_name = text(); }

private:
    QString m_name;
};

std::optional<QString> EditableName(QWidget* owner, const NodeReference& node)
{
    std::optional<QString> name;
    GuardEvent(owner, [&] {
        if (CanEditNode(Client(), node))
            name = ReadNodeName(Client(), node);
    });
    return name;
}

bool EndsTheEdit(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

QWidget*
NodeNameDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const std::optional<QString> name = EditableName(parent, NodeIndexes::NodeAt(index));
    m_editor = name ? new NameEditor(*name, parent) : nullptr;
    return m_editor;
}

void NodeNameDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    if (editor == m_editor)
        m_editor = nullptr; // it is no longer the view's, though it lives until the event loop runs
    QStyledItemDelegate::destroyEditor(editor, index);
}

void NodeNameDelegate::FinishEdit()
{
    if (m_editor)
        emit commitData(m_editor);
}

// The field stays open: Qt may have queued its end already.
void NodeNameDelegate::DropEdit()
{
    if (m_editor)
        static_cast<NameEditor*>(m_editor.data())->TakeAsUnchanged();
}

// Also called if the node changes while the editor is open: the typed text stays.
void NodeNameDelegate::setEditorData(QWidget*, const QModelIndex&) const
{
}

void NodeNameDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const
{
    auto* name = static_cast<NameEditor*>(editor);
    if (!name->IsChanged())
        return;
    name->TakeAsUnchanged(); // an edit may end more than once
    emit NameEntered(NodeIndexes::NodeAt(index), name->text());
}

void NodeNameDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = NameInText(option->text, LongestListed); // all rows have the height of the first
    const NodeReference node = NodeIndexes::NodeAt(index);
    const bool active = option->state & QStyle::State_Active;
    const int side = qMax(option->decorationSize.height(), option->fontMetrics.height());
    option->icon = m_images.Icon(
        node.isGroup, node.image, option->palette, active ? QPalette::Active : QPalette::Inactive);
    option->decorationSize = QSize(side, side);
    option->features |= QStyleOptionViewItem::HasDecoration;
}

// Tab would go to the next node, and ask about pending changes. Enter would end the edit after the event,
// when the dialog may be gone.
bool NodeNameDelegate::eventFilter(QObject* editor, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !EndsTheEdit(static_cast<QKeyEvent*>(event)->key()))
        return QStyledItemDelegate::eventFilter(editor, event);
    auto* widget = static_cast<QWidget*>(editor);
    emit commitData(widget);
    emit closeEditor(widget, NoHint);
    return true;
}

} // namespace Orvane
