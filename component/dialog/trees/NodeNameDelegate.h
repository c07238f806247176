// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/FindWords.h"
#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/trees/NodeImages.h"

#include <QPointer>
#include <QStyledItemDelegate>

namespace Orvane {

class LayerSamples;

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

    /// Draws a sample of each layer's line and fill after its image; nullptr draws none. Not owned.
    void ShowSamples(LayerSamples* samples) { m_samples = samples; }
    /// Draws these words in bold wherever they occur in a text.
    void Mark(const FindWords& words) { m_words = words; }
    void
    paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// Shows the tool tip of the model, and what is read for it only now.
    bool helpEvent(
        QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

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
    void AddSample(QStyleOptionViewItem& option, const NodeReference& node) const;

    NodeImages m_images;
    FindWords m_words;
    LayerSamples* m_samples = nullptr;
    mutable QPointer<QWidget> m_editor; // the one that was opened last
};

} // namespace Orvane
