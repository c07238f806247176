// SPDX-License-Identifier: MIT
#include "store/sqlite/OpenRows.h"

#include <algorithm>

namespace Orvane {

void OpenRows::Remove(OpenRow* row)
{
    // The cursor opened last is nearly always the one that closes first.
    const auto found = std::find(m_rows.rbegin(), m_rows.rend(), row);
    if (found != m_rows.rend())
        m_rows.erase(std::next(found).base());
}

void OpenRows::ReleaseAll()
{
    for (OpenRow* row : m_rows)
        row->ReleaseRow();
}

} // namespace Orvane
