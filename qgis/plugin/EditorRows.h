// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QVector>

class QWidget;

namespace Orvane {

/// The current row of each tree in an editor, for the editor that takes its place.
class EditorRows
{
public:
    /// editor: may be nullptr. Trees are known by their object names.
    explicit EditorRows(const QWidget* editor);

    /// Makes them current in the trees of the same names, as far as there are such rows.
    void Restore(const QWidget* editor) const;

private:
    QHash<QString, QVector<int>> m_rows; // from the top of the tree to the row
};

} // namespace Orvane
