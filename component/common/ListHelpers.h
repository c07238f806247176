// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <QtGlobal>

#include <optional>

namespace Orvane {

/// What selecting does when no entry of the list matches.
enum class WhenMissing {
    SelectNothing, ///< the list index becomes -1
    KeepSelection, ///< the list index stays
};

/// How the helpers below access a list control: through the members of Qt's combo box, or through those of
/// the control library (ListCount, ItemData, List, SetListIndex) if a control has them.
namespace ListAccess {

template <typename List> int Count(const List& list)
{
    if constexpr (requires { list.ListCount(); })
        return list.ListCount();
    else
        return list.count();
}

/// Nothing if the entry holds no number.
template <typename List> std::optional<qint32> Data(const List& list, int index)
{
    if constexpr (requires { list.ItemData(index); }) {
        return qint32(list.ItemData(index));
    } else {
        bool isNumber = false;
        const qint32 number = list.itemData(index).toInt(&isNumber);
        return isNumber ? std::optional(number) : std::nullopt;
    }
}

template <typename List> QString Text(const List& list, int index)
{
    if constexpr (requires { list.List(index); })
        return list.List(index);
    else
        return list.itemText(index);
}

template <typename List> void Select(List& list, int index)
{
    if constexpr (requires { list.SetListIndex(index); })
        list.SetListIndex(index);
    else
        list.setCurrentIndex(index);
}

} // namespace ListAccess

/// The index of the first entry whose item data equals the value; -1 when there is none.
template <typename List> int FindByItemData(const List& list, qint32 value)
{
    const int count = ListAccess::Count(list);
    for (int index = 0; index < count; ++index) {
        if (ListAccess::Data(list, index) == value)
            return index;
    }
    return -1;
}

/// Selects the entry that FindByItemData finds and returns its index, -1 when there is none.
template <typename List>
int SelectByItemData(List& list, qint32 value, WhenMissing whenMissing = WhenMissing::SelectNothing)
{
    const int index = FindByItemData(list, value);
    if (index >= 0 || whenMissing == WhenMissing::SelectNothing)
        ListAccess::Select(list, index);
    return index;
}

/// Selects the first entry with that text (case-sensitive); the selection stays if there is none.
template <typename List> void SelectByText(List& list, const QString& text)
{
    const int count = ListAccess::Count(list);
    for (int index = 0; index < count; ++index) {
        if (ListAccess::Text(list, index) == text) {
            ListAccess::Select(list, index);
            return;
        }
    }
}

} // namespace Orvane
