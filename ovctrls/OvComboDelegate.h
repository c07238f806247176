// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace Orvane {

class OvCombo;

/// Paints the drop-down list of an OvCombo: the style paints background, selection and focus, the combo box
/// paints the content.
class OvComboDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The combo box owns the delegate.
    explicit OvComboDelegate(OvCombo* combo);

    void
    paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// The height of the closed box without its frame, plus a little for the selection around it.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    OvCombo* m_combo;
};

} // namespace Orvane
