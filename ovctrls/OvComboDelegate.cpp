// SPDX-License-Identifier: MIT
#include "ovctrls/OvComboDelegate.h"

#include "ovctrls/OvCombo.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int frameHeight = 6; // of a combo box, both edges
constexpr QMargins selectionFrame(3, 2, 3, 2); // the visible part of the selection around a picture

// The place of the content, as high as in the closed box.
QRect ContentOf(const QRect& row, int height)
{
    const QRect inner = row.marginsRemoved(selectionFrame);
    QRect content(0, 0, inner.width(), std::min(height, inner.height()));
    content.moveCenter(inner.center());
    return content;
}

} // namespace

OvComboDelegate::OvComboDelegate(OvCombo* combo) : QStyledItemDelegate(combo), m_combo(combo)
{
}

void OvComboDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem chrome = option;
    initStyleOption(&chrome, index);
    chrome.text.clear();
    chrome.icon = QIcon(); // part of the content
    chrome.features.setFlag(QStyleOptionViewItem::HasDecoration, false);
    m_combo->style()->drawControl(QStyle::CE_ItemViewItem, &chrome, painter, option.widget);
    const bool isSelected = option.state & QStyle::State_Selected;
    m_combo->PaintItem(
        *painter, ContentOf(option.rect, m_combo->height() - frameHeight), index.row(), isSelected);
}

QSize OvComboDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    const int content = std::max(hint.height(), m_combo->height() - frameHeight);
    return {hint.width(), content + selectionFrame.top() + selectionFrame.bottom()};
}

} // namespace Orvane
