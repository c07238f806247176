// SPDX-License-Identifier: MIT
#include "component/styles/PickerList.h"

#include "component/common/ListHelpers.h"
#include "component/common/Messages.h"
#include "ovctrls/OvCombo.h"

#include <algorithm>
#include <utility>

namespace Orvane {

PickerList::PickerList(OvCombo& combo) : m_combo(combo)
{
    m_remembered.fill(-1);
}

// Whole twips are seldom whole pixels: the scale is that of this size, so that the extents are whole pixels.
ComboSize PickerList::Size() const
{
    const double width = m_combo.WidthInTwips();
    const double height = m_combo.HeightInTwips();
    return {width, height, width / std::max(m_combo.width(), 1), height / std::max(m_combo.height(), 1)};
}

void PickerList::Clear()
{
    m_combo.Clear();
    m_remembered.fill(-1);
}

void PickerList::Add(const QString& text, const QString& description, qint32 data, qint32 position)
{
    m_combo.Insert(text, position);
    const int index = m_combo.NewIndex();
    m_combo.SetItemData(index, data);
    m_combo.SetItemDescription(index, description);
    for (int& remembered : m_remembered) {
        if (remembered >= index)
            ++remembered;
    }
}

void PickerList::AddSpecial(Special item, const QString& text)
{
    m_combo.Append(text);
    RememberLast(item);
}

void PickerList::SetRows(int rows)
{
    m_combo.SetDropDownRows(rows);
}

void PickerList::AddVarious()
{
    if (IndexOf(Special::Various) < 0)
        AddSpecial(Special::Various, TranslateMsg("[various]"));
}

void PickerList::RemoveVarious()
{
    const int index = std::exchange(m_remembered[size_t(Special::Various)], -1);
    if (index >= 0)
        m_combo.Remove(index); // the last item: no other index moves
}

void PickerList::Redraw(const std::function<ItemTexts(qint32 data)>& texts, const QString& customText)
{
    for (int index = 0; index < Count(); ++index) {
        if (index == IndexOf(Special::Custom)) {
            m_combo.Replace(index, customText);
        } else if (index == IndexOf(Special::Various)) {
            m_combo.Replace(index, TranslateMsg("[various]"));
        } else {
            const ItemTexts item = texts(m_combo.ItemData(index));
            m_combo.Replace(index, item.text);
            m_combo.SetItemDescription(index, item.description);
        }
    }
}

void PickerList::RememberLast(Special item)
{
    m_remembered[size_t(item)] = Count() - 1;
}

int PickerList::Count() const
{
    return m_combo.ListCount();
}

int PickerList::Selected() const
{
    return m_combo.ListIndex();
}

void PickerList::Select(int index)
{
    m_combo.SetListIndex(index);
}

qint32 PickerList::SelectedData() const
{
    return Selected() < 0 ? 0 : m_combo.ItemData(Selected());
}

int PickerList::Find(qint32 data) const
{
    return FindByItemData(m_combo, data);
}

} // namespace Orvane
