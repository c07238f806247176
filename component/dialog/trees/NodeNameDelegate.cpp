// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeNameDelegate.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "component/dialog/rows/LayerSamples.h"
#include "component/dialog/rows/RowDetails.h"
#include "component/dialog/rows/SampledIcon.h"
#include "component/dialog/trees/MarkedNode.h"
#include "component/dialog/trees/NodeIndexes.h"
#include "component/dialog/trees/NodeStore.h"
#include "messages/NameInText.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

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

// The key edits the node with the focus, which may be one of several, or not selected at all.
bool IsChosenAlone(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (!view)
        return true;
    const QItemSelection selection = view->selectionModel()->selection();
    return selection.size() == 1 && selection.front().height() == 1 && selection.contains(index);
}

// The details are left out if they cannot be read: a tool tip is no place for an error.
QString ToolTipOf(const QModelIndex& index)
{
    QString details;
    GuardPaint([&] {
        if (HasClient())
            details = ReadRowDetails(Client(), NodeIndexes::NodeAt(index));
    });
    const QString end = QStringLiteral("</qt>");
    QString tip = index.data(Qt::ToolTipRole).toString();
    return tip.endsWith(end) ? tip.insert(tip.size() - end.size(), details) : tip;
}

// Still easy to read, in light palettes and in dark ones.
void Fade(QPalette& palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::Text);
        const QColor base = palette.color(group, QPalette::Base);
        const auto mix = [](int one, int other) { return (one * 3 + other * 2) / 5; };
        palette.setColor(
            group, QPalette::Text,
            QColor(
                mix(text.red(), base.red()), mix(text.green(), base.green()), mix(text.blue(), base.blue())));
    }
}

bool EndsTheEdit(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

QWidget* NodeNameDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!IsChosenAlone(option, index))
        return nullptr;
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

void NodeNameDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem node = option;
    if (const NodeReference shown = NodeIndexes::NodeAt(index); m_samples && !shown.isGroup)
        m_samples->Want(shown.layerID);
    initStyleOption(&node, index);
    const std::vector<FindWords::Piece> pieces
        = m_words.IsEmpty() ? std::vector<FindWords::Piece>() : m_words.PiecesIn(node.text);
    if (pieces.empty())
        QStyledItemDelegate::paint(painter, option, index);
    else
        PaintMarkedNode(*painter, node, pieces);
}

void NodeNameDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = NameInText(option->text, LongestListed); // all rows have the height of the first
    const NodeReference node = NodeIndexes::NodeAt(index);
    const bool active = option->state & QStyle::State_Active;
    const int side = NodeImages::SideOf(option->decorationSize.height(), option->fontMetrics);
    option->icon = m_images.Icon(
        node.isGroup, node.image, option->palette, active ? QPalette::Active : QPalette::Inactive);
    option->decorationSize = QSize(side, side);
    option->features |= QStyleOptionViewItem::HasDecoration;
    if (m_samples && !node.isGroup)
        AddSample(*option, node);
    if (node.image == QuickMode::Hidden)
        Fade(option->palette);
}

void NodeNameDelegate::AddSample(QStyleOptionViewItem& option, const NodeReference& node) const
{
    const qint32 back = BgrFromQColor(option.palette.color(QPalette::Base));
    option.icon = WithSample(option.icon, m_samples->Of(node.layerID), back, option.direction);
    option.decorationSize = SizeWithSample(option.decorationSize);
}

bool NodeNameDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString tip = ToolTipOf(index);
    QToolTip::showText(event->globalPos(), tip, view->viewport(), option.rect);
    return true;
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
