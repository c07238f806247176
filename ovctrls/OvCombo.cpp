// SPDX-License-Identifier: MIT
#include "ovctrls/OvCombo.h"

#include "ovctrls/ComboSize.h"
#include "ovctrls/OvComboDelegate.h"
#include "ovctrls/TwipsPerInch.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvane {

namespace {

constexpr int commandsRole = Qt::UserRole;
constexpr int iconGap = 4; // pixels
constexpr int numberRole = Qt::UserRole + 1;

int ToTwips(int pixels, int dotsPerInch)
{
    return int(std::lround(pixels * TwipsPerInch / dotsPerInch));
}

// Those of QComboBox are not public classes.
bool HasDefaultDelegate(const QComboBox& combo)
{
    return QByteArray(combo.itemDelegate()->metaObject()->className()).startsWith("QCombo");
}

} // namespace

OvCombo::OvCombo(QWidget* parent) : QComboBox(parent)
{
    // Without a placeholder the first item that is added would be selected at once.
    setPlaceholderText(QStringLiteral(" "));
}

// The list takes longer to make than all else here, and most lists are never opened.
void OvCombo::PrepareList()
{
    if (std::exchange(m_hasList, true))
        return;
    if (HasDefaultDelegate(*this))
        setItemDelegate(new OvComboDelegate(this));
    // Some styles open lists as menus, which show all rows whatever DropDownRows says.
    if (styleSheet().isEmpty())
        setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
}

bool OvCombo::HasOwnSize() const
{
    return minimumContentsLength() > 0 && sizeAdjustPolicy() == AdjustToContentsOnFirstShow;
}

QSize OvCombo::sizeHint() const
{
    if (!HasOwnSize())
        return QComboBox::sizeHint();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return ComboSizeForLength(*this, option);
}

QSize OvCombo::minimumSizeHint() const
{
    return HasOwnSize() ? sizeHint() : QComboBox::minimumSizeHint();
}

void OvCombo::showPopup()
{
    PrepareList();
    QComboBox::showPopup();
}

void OvCombo::SetRenderer(const StyleStringRenderer& renderer)
{
    m_renderer = renderer;
    m_tabColumn.reset();
    update();
}

void OvCombo::Clear()
{
    clear();
    m_newIndex = -1;
    m_tabColumn.reset();
}

void OvCombo::Insert(const QString& item, int position)
{
    m_newIndex = std::clamp(position, 0, count());
    insertItem(m_newIndex, m_renderer.PlainText(item), item);
    m_tabColumn.reset();
}

void OvCombo::Replace(int index, const QString& item)
{
    setItemText(index, m_renderer.PlainText(item));
    setItemData(index, item, commandsRole);
    m_tabColumn.reset();
}

void OvCombo::Remove(int index)
{
    removeItem(index);
    m_tabColumn.reset();
    if (m_newIndex == index)
        m_newIndex = -1;
    else if (m_newIndex > index)
        --m_newIndex;
}

QString OvCombo::List(int index) const
{
    return HasCommands(index) ? itemData(index, commandsRole).toString() : itemText(index);
}

qint32 OvCombo::ItemData(int index) const
{
    return itemData(index, numberRole).toInt();
}

void OvCombo::SetItemData(int index, qint32 value)
{
    setItemData(index, value, numberRole);
}

void OvCombo::SetItemDescription(int index, const QString& description)
{
    setItemText(index, description);
    setItemData(index, description, Qt::ToolTipRole);
}

void OvCombo::SetListIndex(int index)
{
    if (index >= -1 && index < count())
        setCurrentIndex(index);
}

void OvCombo::SetDropDownRows(int rows)
{
    setMaxVisibleItems(std::max(rows, 1));
}

int OvCombo::WidthInTwips() const
{
    return ToTwips(width(), logicalDpiX());
}

int OvCombo::HeightInTwips() const
{
    return ToTwips(height(), logicalDpiY());
}

void OvCombo::PaintItem(QPainter& painter, const QRect& rectangle, int index, bool isSelected)
{
    QFont plain = font();
    plain.setUnderline(false);
    PaintContent(painter, rectangle, index, {plain, TextColour(isSelected), TabColumn(index)});
}

bool OvCombo::HasCommands(int index) const
{
    return itemData(index, commandsRole).isValid();
}

void OvCombo::PaintPlain(
    QPainter& painter, const QRect& rectangle, int index, const StyleStringLook& look) const
{
    const QIcon icon = itemIcon(index);
    const int iconWidth = icon.isNull() ? 0 : iconSize().width() + iconGap;
    const QRect iconPlace(rectangle.topLeft(), QSize(iconWidth, rectangle.height()));
    const QRect textPlace = rectangle.adjusted(iconWidth, 0, 0, 0);
    const QString text
        = QFontMetrics(look.font).elidedText(itemText(index), Qt::ElideRight, textPlace.width());
    painter.save();
    painter.setFont(look.font);
    painter.setPen(look.textColour);
    icon.paint(&painter, QStyle::visualRect(layoutDirection(), rectangle, iconPlace), Qt::AlignCenter);
    painter.drawText(
        QStyle::visualRect(layoutDirection(), rectangle, textPlace),
        int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter)
            | Qt::TextSingleLine,
        text);
    painter.restore();
}

void OvCombo::PaintContent(QPainter& painter, const QRect& rectangle, int index, const StyleStringLook& look)
{
    if (index < 0 || index >= count())
        return;
    if (!HasCommands(index))
        PaintPlain(painter, rectangle, index, look);
    else if (m_renderer.IsUserDrawn(List(index)))
        emit DrawItem(painter, index, rectangle);
    else
        m_renderer.Paint(painter, rectangle, List(index), look);
}

void OvCombo::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText.clear();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect content
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    PaintContent(painter, content, currentIndex(), {font(), TextColour(false), TabColumn(currentIndex())});
}

void OvCombo::changeEvent(QEvent* event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        m_tabColumn.reset();
}

// An item without a label begins at the left, whatever labels the others have.
int OvCombo::TabColumn(int index)
{
    if (!HasCommands(index) || m_renderer.LabelWidth(List(index), font()) == 0)
        return 0;
    if (!m_tabColumn)
        m_tabColumn = WidestLabel();
    return *m_tabColumn;
}

int OvCombo::WidestLabel() const
{
    int widest = 0;
    for (int index = 0; index < count(); ++index) {
        if (HasCommands(index))
            widest = std::max(widest, m_renderer.LabelWidth(List(index), font()));
    }
    return widest;
}

QColor OvCombo::TextColour(bool isSelected) const
{
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    return palette().color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace Orvane
