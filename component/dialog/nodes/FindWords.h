// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

/// The words of a find. Case and accents do not count.
class FindWords
{
public:
    /// A piece of a text, in characters.
    struct Piece {
        int start = 0;
        int length = 0;

        bool operator==(const Piece&) const = default;
    };

    /// No words: everything is found.
    FindWords() = default;
    /// text: what the user typed; blanks separate the words.
    explicit FindWords(const QString& text);

    bool IsEmpty() const { return m_words.isEmpty(); }
    /// The words as FoldedText returns them.
    const QStringList& Folded() const { return m_words; }

    /// The pieces of the text that are one of the words, from left to right; pieces that touch are one.
    std::vector<Piece> PiecesIn(const QString& text) const;

private:
    QStringList m_words;
};

} // namespace Orvane
