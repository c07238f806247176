// SPDX-License-Identifier: MIT
#pragma once

#include "samples/ComboGeometry.h"

#include <QString>
#include <QtGlobal>

#include <array>
#include <vector>

namespace Orvane {

class OvCombo;

/// The items of one picker's combo box, and the indexes of those that are remembered. An item that is
/// inserted anywhere moves every remembered index behind it.
class PickerList
{
public:
    /// The position that appends.
    static constexpr qint32 AtEnd = 0x7FFFFFFF;

    /// The items that are found by their index, as their data tells nothing.
    enum class Special {
        LastStandard, ///< the last item that every list has, before those that were added
        Custom, ///< "Custom Colour..." or "Custom Line Style..."
        Various, ///< "[various]"
    };

    /// combo: not owned; outlives this object.
    explicit PickerList(OvCombo& combo);

    OvCombo& Combo() const { return m_combo; }
    /// The combo box as the sizes of item drawings are derived from it.
    ComboSize Size() const;

    /// Removes all items; nothing is remembered then.
    void Clear();
    /// Adds an item with its data, at the end or before the item at the position. description: what is said
    /// of it.
    void Add(const QString& text, const QString& description, qint32 data, qint32 position = AtEnd);
    /// Appends an item without data and remembers it.
    void AddSpecial(Special item, const QString& text);
    /// Sets how many rows the open list shows at most.
    void SetRows(int rows);
    /// Appends the translated "[various]" and remembers it; not a second time.
    void AddVarious();

    /// Remembers the last item as this one.
    void RememberLast(Special item);
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

    /// The data of the items that were added to the standard ones, before the custom item.
    std::vector<qint32> AddedData() const;

private:
    static constexpr size_t specialCount = 3;

    OvCombo& m_combo;
    std::array<int, specialCount> m_remembered;
};

} // namespace Orvane
