// SPDX-License-Identifier: MIT
#include "store/shared/ColumnMap.h"

#include <algorithm>

namespace Orvane {

namespace {

constexpr size_t MaxSpellings = 256;

char InLowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
}

bool NamesAColour(std::string_view name)
{
    return SameName(name, "Color") || SameName(name, "FillForeColor") || SameName(name, "FillBackColor");
}

} // namespace

bool SameName(std::string_view left, std::string_view right)
{
    const auto isSame = [](char one, char other) { return InLowerCase(one) == InLowerCase(other); };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), isSame);
}

void ColumnMap::Clear()
{
    m_columns.clear();
    m_spellings.clear();
    m_last = 0;
}

void ColumnMap::Add(std::string_view name)
{
    m_columns.push_back({std::string(name), NamesAColour(name)});
}

int ColumnMap::Find(std::string_view name)
{
    if (!m_spellings.empty()) {
        const size_t guess = m_spellings[m_last].follower;
        if (m_spellings[guess].name == name) {
            m_last = guess;
            return m_spellings[guess].position;
        }
    }
    const size_t found = FindSpelling(name);
    if (found == m_spellings.size())
        return -1;
    m_spellings[m_last].follower = found;
    m_last = found;
    return m_spellings[found].position;
}

size_t ColumnMap::FindSpelling(std::string_view name)
{
    const auto known = std::find_if(m_spellings.begin(), m_spellings.end(), [name](const Spelling& spelling) {
        return spelling.name == name;
    });
    if (known != m_spellings.end())
        return size_t(known - m_spellings.begin());
    const int position = FindColumn(name);
    if (position < 0)
        return m_spellings.size();
    if (m_spellings.size() == MaxSpellings) {
        m_spellings.clear();
        m_last = 0;
    }
    m_spellings.push_back({std::string(name), position, 0});
    return m_spellings.size() - 1;
}

int ColumnMap::FindColumn(std::string_view name) const
{
    for (size_t i = 0; i < m_columns.size(); ++i) {
        if (SameName(m_columns[i].name, name))
            return int(i);
    }
    return -1;
}

} // namespace Orvane
