// SPDX-License-Identifier: MIT
#include "store/shared/PendingEdit.h"

namespace Orvane {

void PendingEdit::Set(int position, const Value& value)
{
    for (SetColumn& column : m_columns) {
        if (column.position == position) {
            column.value = value;
            return;
        }
    }
    m_columns.push_back({position, value});
}

const Value* PendingEdit::Find(int position) const
{
    for (const SetColumn& column : m_columns) {
        if (column.position == position)
            return &column.value;
    }
    return nullptr;
}

} // namespace Orvane
