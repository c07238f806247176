// SPDX-License-Identifier: MIT
#include "store/postgres/link/RowText.h"

namespace Orvane {

namespace {

// Reads the text of one row from front to back.
class RowTextReader
{
public:
    explicit RowTextReader(std::string_view text) : m_text(text) { }

    bool AtEnd() const { return m_place == m_text.size(); }
    bool Skip(char letter)
    {
        if (AtEnd() || m_text[m_place] != letter)
            return false;
        ++m_place;
        return true;
    }
    // False if the text ends within the value.
    bool Read(std::optional<std::string>& value)
    {
        if (AtEnd())
            return false;
        if (m_text[m_place] == ',' || m_text[m_place] == ')') {
            value.reset();
            return true;
        }
        if (!value)
            value.emplace();
        value->clear();
        return Skip('"') ? ReadQuoted(*value) : ReadPlain(*value);
    }

private:
    // Quotes and backslashes are doubled.
    bool ReadQuoted(std::string& value)
    {
        while (m_place < m_text.size()) {
            const char letter = m_text[m_place++];
            const bool isSpecial = letter == '"' || letter == '\\';
            if (isSpecial && !Skip(letter))
                return letter == '"';
            value += letter;
        }
        return false;
    }
    bool ReadPlain(std::string& value)
    {
        const size_t end = m_text.find_first_of(",)", m_place);
        if (end == std::string_view::npos)
            return false;
        value.assign(m_text, m_place, end - m_place);
        m_place = end;
        return true;
    }

    std::string_view m_text;
    size_t m_place = 0;
};

} // namespace

bool ReadRowText(std::string_view text, std::vector<std::optional<std::string>>& values)
{
    RowTextReader reader(text);
    if (!reader.Skip('('))
        return false;
    size_t count = 0;
    do {
        if (values.size() == count)
            values.emplace_back();
        if (!reader.Read(values[count++]))
            return false;
    } while (reader.Skip(','));
    values.resize(count);
    return reader.Skip(')') && reader.AtEnd();
}

} // namespace Orvane
