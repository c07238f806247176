// SPDX-License-Identifier: MIT
#pragma once

#include "ovctrls/StyleStringRenderer.h"

#include <QComboBox>

namespace Orvane {

/// A combo box whose items are drawing commands (see StyleStringRenderer), each with a 32-bit number beside
/// it.
///
///     colours->SetRenderer(StyleStringRenderer(prefix));
///     colours->Append(strings.ColourItem(255, extent));
///     colours->SetItemData(colours->NewIndex(), 255);
///
/// Indexes count from 0; one outside the list is nothing: it reads as an empty text and 0, and setting it
/// does nothing. Adding items selects none of them. The person's choice is told by QComboBox's activated,
/// every change of the selection by its currentIndexChanged.
class OvCombo : public QComboBox
{
    Q_OBJECT

public:
    /// The position that appends.
    static constexpr int AtEnd = 0x7FFFFFFF;

    explicit OvCombo(QWidget* parent = nullptr);

    /// How the items are read; set it before they are added.
    void SetRenderer(const StyleStringRenderer& renderer);
    const StyleStringRenderer& Renderer() const { return m_renderer; }

    void Clear();
    void Append(const QString& item) { Insert(item, AtEnd); }
    /// Inserts before the item at the position; beyond the end it appends. The selected item stays selected.
    void Insert(const QString& item, int position);
    int ListCount() const { return count(); }
    /// The commands of an item.
    QString List(int index) const;
    /// The index of the item added last; -1 when the list was cleared since.
    int NewIndex() const { return m_newIndex; }

    /// The number beside an item; 0 when none was set.
    qint32 ItemData(int index) const;
    void SetItemData(int index, qint32 value);

    /// What is said of an item that has no words, such as a swatch: for screen readers and searches.
    void SetItemDescription(int index, const QString& description);

    /// The selected index, -1 for none.
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);

    /// How many rows the drop-down shows at most; at least 1.
    int DropDownRows() const { return maxVisibleItems(); }
    void SetDropDownRows(int rows);

    /// The size of the closed box in twips, 1/1440 inch by the logical resolution of its screen.
    int WidthInTwips() const;
    int HeightInTwips() const;

    /// Paints the content of an item of the list: by the renderer, or through DrawItem. isSelected: with the
    /// colours of the selection. An underlined font marks the closed box only.
    void PaintItem(QPainter& painter, const QRect& rectangle, int index, bool isSelected);

signals:
    /// A user-drawn item must be painted, in the list or in the closed box. rectangle: pixels of the painter.
    /// A listener must not raise.
    void DrawItem(QPainter& painter, int index, const QRect& rectangle);

protected:
    /// Paints the frame of the style around the selected item instead of its text.
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void PaintContent(QPainter& painter, const QRect& rectangle, int index, const StyleStringLook& look);
    QColor TextColour(bool isSelected) const;
    void FindTabColumn();

    StyleStringRenderer m_renderer;
    int m_newIndex = -1;
    int m_tabColumn = 0; // pixels; behind the widest label of all items
};

} // namespace Orvane
