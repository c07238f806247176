// SPDX-License-Identifier: MIT
#include "qgis/plugin/EditorRows.h"

#include <QTreeView>

namespace Orvane {

namespace {

QVector<int> PathTo(QModelIndex index)
{
    QVector<int> rows;
    for (; index.isValid(); index = index.parent())
        rows.prepend(index.row());
    return rows;
}

QModelIndex IndexAt(const QAbstractItemModel& model, const QVector<int>& rows)
{
    QModelIndex index;
    for (const int row : rows) {
        index = model.index(row, 0, index);
        if (!index.isValid())
            break;
    }
    return index;
}

} // namespace

EditorRows::EditorRows(const QWidget* editor)
{
    if (!editor)
        return;
    for (const QTreeView* tree : editor->findChildren<QTreeView*>()) {
        if (tree->currentIndex().isValid())
            m_rows.insert(tree->objectName(), PathTo(tree->currentIndex()));
    }
}

void EditorRows::Restore(const QWidget* editor) const
{
    for (auto tree = m_rows.begin(); editor && tree != m_rows.end(); ++tree) {
        auto* view = editor->findChild<QTreeView*>(tree.key());
        const QModelIndex index = view && view->model() ? IndexAt(*view->model(), *tree) : QModelIndex();
        if (index.isValid())
            view->setCurrentIndex(index);
    }
}

} // namespace Orvane
