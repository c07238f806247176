// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QAbstractButton;
class QLabel;
class QTreeView;

namespace Orvane {

/// How many layers are shown.
struct ShownCount {
    qsizetype shown = 0;
    qsizetype all = 0;
};

/// The bar above a list that says that only some layers are shown, and brings back the others. At first
/// hidden.
class ShownBar : public QFrame
{
    Q_OBJECT

public:
    /// view: the list; the bar is put above it in its layout, after it in the tab order.
    explicit ShownBar(QTreeView& view);

    /// Shows the numbers, in the current language, and tells them to screen readers if they are new.
    void ShowCount(const ShownCount& count);
    /// Hides the bar; its focus goes to the list.
    void ShowNothing();

signals:
    /// The user wants all layers back.
    void ShowAllRequested();

private:
    QTreeView& m_view;
    QLabel* m_label;
    QAbstractButton* m_button;
};

} // namespace Orvane
