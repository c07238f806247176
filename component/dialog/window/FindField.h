// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/LayerTrees.h"

#include <QObject>

class QLabel;
class QLineEdit;
class QTreeView;

namespace Orvane {

/// The field above a list in which the user types what to find, and the label beside it with the number of
/// layers found. Down and Enter go to the first node found; Escape empties the field, and leaves an empty one
/// for the list.
class FindField : public QObject
{
    Q_OBJECT

public:
    struct Widgets {
        QLineEdit* field;
        QLabel* count;
        QTreeView* view;
    };

    /// None is owned; all outlive this object. trees: the owner of the list.
    FindField(const Widgets& widgets, LayerTrees& trees, LayerTrees::List list, QObject* parent = nullptr);

    /// True while its list is the one that the window shows.
    bool IsShown() const;
    /// Gives the field the focus, with its text selected.
    void TakeFocus();
    /// Shows the number found again, in the current language.
    void ShowCount();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Find(const QString& text);
    bool HandleKey(int key);
    void GoToFirst();

    Widgets m_widgets;
    LayerTrees& m_trees;
    LayerTrees::List m_list;
};

} // namespace Orvane
