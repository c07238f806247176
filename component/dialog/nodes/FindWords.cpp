// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/FindWords.h"

#include "component/dialog/nodes/FoldedText.h"

#include <algorithm>

namespace Orvane {

namespace {

using Marks = std::vector<bool>;

void MarkWord(Marks& marks, const QString& folded, const QString& word)
{
    for (auto at = folded.indexOf(word); at >= 0; at = folded.indexOf(word, at + 1))
        std::fill_n(marks.begin() + at, word.size(), true);
}

// An accent that follows a marked letter belongs to it.
Marks SpreadOver(const QString& text, const Marks& marks)
{
    Marks spread(std::size_t(text.size()), false);
    const std::vector<int> places = FoldedPlaces(text);
    for (std::size_t number = 0; number < places.size(); ++number) {
        const int end = number + 1 < places.size() ? places[number + 1] : int(text.size());
        std::fill(spread.begin() + places[number], spread.begin() + end, marks[number]);
    }
    return spread;
}

} // namespace

FindWords::FindWords(const QString& text)
    : m_words(FoldedText(text.simplified()).split(QLatin1Char(' '), Qt::SkipEmptyParts))
{
}

std::vector<FindWords::Piece> FindWords::PiecesIn(const QString& text) const
{
    const QString folded = FoldedText(text);
    Marks marks(std::size_t(folded.size()), false);
    for (const QString& word : m_words)
        MarkWord(marks, folded, word);
    const Marks spread = SpreadOver(text, marks);
    std::vector<Piece> pieces;
    for (auto from = std::find(spread.begin(), spread.end(), true); from != spread.end();) {
        const auto to = std::find(from, spread.end(), false);
        pieces.push_back({int(from - spread.begin()), int(to - from)});
        from = std::find(to, spread.end(), true);
    }
    return pieces;
}

} // namespace Orvane
