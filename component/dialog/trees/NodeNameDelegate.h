// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeImages.h"
#include "component/dialog/trees/NodeKey.h"

#include <QPointer>
#include <QStyledItemDelegate>

namespace Orvane {

/// Draws the nodes of a tree with their images, and edits their names in place.
///
/// An editor opens only on a node that may be renamed, and starts with the stored name, which may differ from
/// the listed text. Nothing is written here.
class NodeNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

    /// Takes the name from an open edit, as leaving the field does.
    void FinishEdit();
    /// Takes no name from an open edit.
    void DropEdit();

signals:
    /// The user ended an edit that changed the name; the editor still exists.
    void NameEntered(const Orvane::NodeReference& node, const QString& name) const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    NodeImages m_images;
    mutable QPointer<QWidget> m_editor; // the one that was opened last
};

} // namespace Orvane
