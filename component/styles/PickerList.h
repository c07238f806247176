// SPDX-License-Identifier: MIT
#pragma once

#include "samples/ComboGeometry.h"

#include <QString>
#include <QtGlobal>

#include <array>
#include <functional>

namespace Orvane {

class OvCombo;

/// The items of one picker's combo box, and the remembered indexes of some of them. Inserting an item moves
/// every remembered index after it.
class PickerList
{
public:
    /// The position that appends.
    static constexpr qint32 AtEnd = 0x7FFFFFFF;

    /// The items that are found by their index, because their data does not identify them.
    enum class Special {
        Custom, ///< "Custom Colour..." or "Custom Line Style..."
        Various, ///< "[various]"
    };

    /// combo: not owned; outlives this object.
    explicit PickerList(OvCombo& combo);

    OvCombo& Combo() const { return m_combo; }
    /// The size of the combo box, from which the sizes of item drawings are calculated.
    ComboSize Size() const;

    /// Removes all items and all remembered indexes.
    void Clear();
    /// Adds an item with its data, at the end or before the item at the position. description: for screen
    /// readers, searches and tool tips.
    void Add(const QString& text, const QString& description, qint32 data, qint32 position = AtEnd);
    /// Appends an item without data and remembers it.
    void AddSpecial(Special item, const QString& text);
    /// Sets the maximum number of rows in the open list.
    void SetRows(int rows);
    /// Appends the translated "[various]" and remembers it, but only once.
    void AddVarious();

    /// Removes "[various]" if the list has it. It must not be selected.
    void RemoveVarious();

    /// The text of the item with that data, and its description.
    struct ItemTexts {
        QString text;
        QString description;
    };
    /// Draws and translates all items again; they stay where they are. customText: of Special::Custom.
    void Redraw(const std::function<ItemTexts(qint32 data)>& texts, const QString& customText);

    /// The index, -1 when the list has no such item.
    int IndexOf(Special item) const { return m_remembered[size_t(item)]; }

    int Count() const;
    int Selected() const;
    bool IsSelected(Special item) const { return Selected() >= 0 && Selected() == IndexOf(item); }
    void Select(int index);
    void Select(Special item) { Select(IndexOf(item)); }
    /// The selected item's data; 0 when nothing is selected.
    qint32 SelectedData() const;
    /// The index of the first item with that data, -1 when there is none.
    int Find(qint32 data) const;

private:
    void RememberLast(Special item);

    static constexpr size_t specialCount = 2;

    OvCombo& m_combo;
    std::array<int, specialCount> m_remembered;
};

} // namespace Orvane
