// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/ovctrls/StyleStringRenderer.h>

#include <QComboBox>

#include <optional>

namespace Orvane {

/// A combo box whose items are drawing commands (see StyleStringRenderer), each with a 32-bit number
/// attached.
///
///     colours->SetRenderer(StyleStringRenderer(prefix));
///     colours->Append(strings.ColourItem(255, extent));
///     colours->SetItemData(colours->NewIndex(), 255);
///
/// An item that was added by QComboBox's own functions, or in Qt Designer, has no commands: its text and icon
/// are painted as in any combo box.
///
/// Indexes count from 0; an index outside the list reads as an empty text and 0, and setting it does nothing.
/// Adding items does not select any. QComboBox's activated is emitted when the user chooses an item, its
/// currentIndexChanged on every change of the selection.
class OvCombo : public QComboBox
{
    Q_OBJECT

public:
    /// The position that appends.
    static constexpr int AtEnd = 0x7FFFFFFF;

    /// An empty list. parent: owns it; may be nullptr.
    explicit OvCombo(QWidget* parent = nullptr);

    /// Sets how the items are read; call it before items are added.
    void SetRenderer(const StyleStringRenderer& renderer);
    const StyleStringRenderer& Renderer() const { return m_renderer; }

    /// Removes all items.
    void Clear();
    /// Adds the item behind the others.
    void Append(const QString& item) { Insert(item, AtEnd); }
    /// Inserts before the item at the position; beyond the end it appends. The selected item stays selected.
    void Insert(const QString& item, int position);
    /// Replaces an item's commands; its number and the selection stay, its description does not.
    void Replace(int index, const QString& item);
    /// Removes an item that is not selected; the selected item stays selected.
    void Remove(int index);
    int ListCount() const { return count(); }
    /// The commands of an item; the text of an item without commands.
    QString List(int index) const;
    /// The index of the item added last; -1 if the list has been cleared since.
    int NewIndex() const { return m_newIndex; }

    /// The number attached to an item; 0 if none was set.
    qint32 ItemData(int index) const;
    void SetItemData(int index, qint32 value);

    /// Describes an item without words, such as a swatch: for screen readers and searches, and as its tool
    /// tip in the open list.
    void SetItemDescription(int index, const QString& description);

    /// The selected index, -1 for none.
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);

    /// The maximum number of rows that the drop-down shows; at least 1. In Designer: maxVisibleItems.
    int DropDownRows() const { return maxVisibleItems(); }
    void SetDropDownRows(int rows);

    /// The size of the closed box in twips (1/1440 inch) at the logical resolution of its screen.
    int WidthInTwips() const;
    int HeightInTwips() const;

    /// Paints the content of an item of the list: by the renderer, or through DrawItem. isSelected: use the
    /// selection colours. An underlined font applies to the closed box only.
    void PaintItem(QPainter& painter, const QRect& rectangle, int index, bool isSelected);

    /// With a minimumContentsLength, and unless another sizeAdjustPolicy was set, the box has room for that
    /// many letters and an icon, whatever its items.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Opens the list, which is made when it is opened first.
    void showPopup() override;

Q_SIGNALS:
    /// A user-drawn item must be painted, in the list or in the closed box. rectangle: pixels of the painter.
    /// A listener must not raise.
    void DrawItem(QPainter& painter, int index, const QRect& rectangle);

protected:
    /// Paints the style's frame, with the selected item in it instead of its text.
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool HasOwnSize() const;
    void PrepareList();
    bool HasCommands(int index) const;
    void PaintPlain(QPainter& painter, const QRect& rectangle, int index, const StyleStringLook& look) const;
    void PaintContent(QPainter& painter, const QRect& rectangle, int index, const StyleStringLook& look);
    int TabColumn(int index);
    int WidestLabel() const;
    QColor TextColour(bool isSelected) const;

    StyleStringRenderer m_renderer;
    int m_newIndex = -1;
    bool m_hasList = false;
    std::optional<int> m_tabColumn; // pixels; after the widest label of all items, when that was measured
};

} // namespace Orvane
