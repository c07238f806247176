// SPDX-License-Identifier: MIT
#include "store/postgres/link/StatementNames.h"

namespace Orvane {

namespace {

// Some queries contain IDs, so that the number of texts would otherwise have no limit.
constexpr size_t MaxNames = 128;

} // namespace

StatementNames::Use StatementNames::For(const QByteArray& text)
{
    Use use;
    const auto known = m_places.constFind(text);
    if (known != m_places.constEnd()) {
        m_entries.splice(m_entries.begin(), m_entries, *known);
        use.name = m_entries.front().name;
        return use;
    }
    if (m_entries.size() == MaxNames) {
        use.dropped = m_entries.back().name;
        m_places.remove(m_entries.back().text);
        m_entries.pop_back();
    }
    use.isNew = true;
    use.name = "s" + QByteArray::number(++m_made);
    m_entries.push_front({text, use.name});
    m_places.insert(text, m_entries.begin());
    return use;
}

void StatementNames::Forget(const QByteArray& text)
{
    const auto known = m_places.constFind(text);
    if (known == m_places.constEnd())
        return;
    m_entries.erase(*known);
    m_places.erase(known);
}

void StatementNames::ForgetAll()
{
    m_entries.clear();
    m_places.clear();
}

} // namespace Orvane
