// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/FoldedText.h"

#include <array>

namespace Orvane {

namespace {

// Other marks, as in Japanese, make another letter.
constexpr bool IsAccent(char16_t character)
{
    return character >= 0x300 && character < 0x370;
}

bool IsAccents(const QString& text)
{
    for (const QChar character : text) {
        if (!IsAccent(character.unicode()))
            return false;
    }
    return true;
}

char16_t LetterOf(char16_t character)
{
    const QChar whole(character);
    if (whole.decompositionTag() != QChar::Canonical)
        return character;
    const QString parts = whole.decomposition();
    return IsAccents(parts.mid(1)) ? LetterOf(parts.at(0).unicode()) : character;
}

// The folded form of each character, made for a page of characters when one of them is first met: a find
// over many names must not look each character up in Qt's tables. Used by the main thread only.
class FoldingTable
{
public:
    char16_t operator[](char16_t character)
    {
        const std::size_t page = character / PageSize;
        if (!m_made[page])
            MakePage(page);
        return m_folded[character];
    }

private:
    static constexpr std::size_t PageSize = 256;
    static constexpr std::size_t PageCount = 256;

    void MakePage(std::size_t page)
    {
        for (std::size_t character = page * PageSize; character < (page + 1) * PageSize; ++character)
            m_folded[character] = QChar(LetterOf(char16_t(character))).toCaseFolded().unicode();
        m_made[page] = true;
    }

    std::array<char16_t, PageSize * PageCount> m_folded{};
    std::array<bool, PageCount> m_made{};
};

FoldingTable& Foldings()
{
    static FoldingTable table;
    return table;
}

} // namespace

void AppendFolded(std::u16string& folded, const QString& text)
{
    FoldingTable& foldings = Foldings();
    const std::size_t before = folded.size();
    folded.resize(before + std::size_t(text.size()));
    char16_t* next = folded.data() + before;
    for (const QChar character : text) {
        if (!IsAccent(character.unicode()))
            *next++ = foldings[character.unicode()];
    }
    folded.resize(std::size_t(next - folded.data()));
}

QString FoldedText(const QString& text)
{
    std::u16string folded;
    AppendFolded(folded, text);
    return QString::fromStdU16String(folded);
}

std::vector<int> FoldedPlaces(const QString& text)
{
    std::vector<int> places;
    places.reserve(std::size_t(text.size()));
    for (int place = 0; place < int(text.size()); ++place) {
        if (!IsAccent(text.at(place).unicode()))
            places.push_back(place);
    }
    return places;
}

} // namespace Orvane
