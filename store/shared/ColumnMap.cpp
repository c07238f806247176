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
        const Followers& guesses = m_spellings[m_last].followers;
        for (const size_t guess : {guesses.latest, guesses.earlier}) {
            if (m_spellings[guess].name == name)
                return Follow(guess);
        }
    }
    const size_t found = FindSpelling(name);
    return found == m_spellings.size() ? -1 : Follow(found);
}

int ColumnMap::Follow(size_t spelling)
{
    Followers& followers = m_spellings[m_last].followers;
    if (followers.latest != spelling)
        followers = {spelling, followers.latest};
    m_last = spelling;
    return m_spellings[spelling].position;
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
    m_spellings.push_back({std::string(name), position, {}});
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
