// SPDX-License-Identifier: MIT
#include "store/postgres/link/StatementText.h"

#include "store/StoreTexts.h"
#include "store/shared/StoreErrors.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Orvane {

namespace {

constexpr int MaxParameters = 65535; // the protocol counts them with 16 bits

constexpr std::array Queries = {"SELECT", "VALUES", "TABLE", "WITH"};
constexpr std::array Definitions = {"CREATE", "ALTER", "DROP"};
constexpr std::array Writes = {"INSERT", "UPDATE", "DELETE", "MERGE", "INTO"};
constexpr std::array Forbidden
    = {"BEGIN",   "START",   "COMMIT",  "END",  "ROLLBACK", "ABORT",      "SAVEPOINT", "RELEASE",
       "PREPARE", "EXECUTE", "DECLARE", "COPY", "DISCARD",  "DEALLOCATE", "DO",        "CALL"};

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

bool IsNameStart(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || letter == '_'
        || letter < 0;
}

bool IsNamePart(char letter)
{
    return IsNameStart(letter) || IsDigit(letter) || letter == '$';
}

bool IsSpace(char letter)
{
    return letter == ' ' || (letter >= '\t' && letter <= '\r');
}

template <typename Words> bool Contains(const Words& words, const QByteArray& word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// Goes through a text and keeps apart what is code and what only stands in it: texts, names in quotes,
/// comments.
class Scanner
{
public:
    explicit Scanner(const QByteArray& sql) : m_sql(sql.constData(), size_t(sql.size())) { }

    void Run()
    {
        while (m_at < m_sql.size())
            Step();
    }

    StatementText result;
    QByteArray firstWord;
    bool hasSecond = false;
    bool hasWrite = false;

private:
    void Step()
    {
        const char letter = m_sql[m_at];
        if (const size_t comment = CommentLength(); comment > 0)
            return Copy(comment);
        if (IsSpace(letter))
            return Copy(1);
        if (letter == ';') {
            m_ended = true;
            return Copy(1);
        }
        hasSecond = hasSecond || m_ended;
        if (letter == '?' && m_at + 1 < m_sql.size() && IsDigit(m_sql[m_at + 1]))
            return TakeParameter();
        if (IsNameStart(letter))
            return TakeWord();
        Copy(LiteralLength());
    }

    void Copy(size_t length)
    {
        length = std::min(length, m_sql.size() - m_at);
        result.text.append(m_sql.data() + m_at, int(length));
        m_at += length;
    }

    size_t CommentLength() const
    {
        const std::string_view rest = m_sql.substr(m_at);
        if (rest.substr(0, 2) == "--")
            return std::min(rest.find('\n'), rest.size());
        if (rest.substr(0, 2) != "/*")
            return 0;
        int depth = 0; // comments may contain comments
        size_t i = 0;
        do {
            const std::string_view mark = rest.substr(i, 2);
            depth += mark == "/*" ? 1 : mark == "*/" ? -1 : 0;
            i += mark == "/*" || mark == "*/" ? 2 : 1;
        } while (depth > 0 && i < rest.size());
        return i;
    }

    // Of what begins here: a text, a name in quotes, a number, or one letter of anything else.
    size_t LiteralLength() const
    {
        const char letter = m_sql[m_at];
        if (letter == '\'' || letter == '"')
            return QuotedLength(m_at, false);
        if (letter == '$')
            return DollarLength();
        size_t length = 1;
        while (IsDigit(letter) && m_at + length < m_sql.size() && IsNamePart(m_sql[m_at + length]))
            ++length;
        return length;
    }

    size_t QuotedLength(size_t start, bool hasEscapes) const
    {
        const char quote = m_sql[start];
        size_t i = start + 1;
        while (i < m_sql.size() && m_sql[i] != quote)
            i += hasEscapes && m_sql[i] == '\\' ? 2 : 1;
        return i + 1 - start; // a doubled quote begins the next part of the same text
    }

    size_t DollarLength() const
    {
        size_t end = m_at + 1;
        while (end < m_sql.size() && IsNamePart(m_sql[end]) && m_sql[end] != '$')
            ++end;
        if (end >= m_sql.size() || m_sql[end] != '$' || IsDigit(m_sql[m_at + 1]))
            return 1;
        const std::string_view tag = m_sql.substr(m_at, end + 1 - m_at);
        const size_t close = m_sql.find(tag, end + 1);
        return close == std::string_view::npos ? m_sql.size() - m_at : close + tag.size() - m_at;
    }

    void TakeParameter()
    {
        int number = 0;
        for (++m_at; m_at < m_sql.size() && IsDigit(m_sql[m_at]); ++m_at)
            number = std::min(number * 10 + (m_sql[m_at] - '0'), MaxParameters + 1);
        result.text += '$' + QByteArray::number(number);
        result.parameters = std::max(result.parameters, number);
    }

    void TakeWord()
    {
        size_t length = 1;
        while (m_at + length < m_sql.size() && IsNamePart(m_sql[m_at + length]))
            ++length;
        const QByteArray word = QByteArray(m_sql.data() + m_at, int(length)).toUpper();
        if (firstWord.isEmpty())
            firstWord = word;
        hasWrite = hasWrite || Contains(Writes, word);
        Copy(length);
        if (word == "E" && m_at < m_sql.size() && m_sql[m_at] == '\'')
            Copy(QuotedLength(m_at, true));
    }

    std::string_view m_sql;
    size_t m_at = 0;
    bool m_ended = false;
};

} // namespace

StatementText StatementText::Of(const QString& sql, const StoreErrors& errors)
{
    const QByteArray utf8 = sql.toUtf8();
    Scanner scanner(utf8);
    scanner.Run();
    if (scanner.firstWord.isEmpty() || scanner.hasSecond || utf8.contains('\0'))
        throw errors.Failure(StoreTexts::NotOneStatement);
    if (Contains(Forbidden, scanner.firstWord))
        throw errors.Failure(StoreTexts::NotAStatementHere, QString::fromUtf8(scanner.firstWord));
    scanner.result.changesTables = Contains(Definitions, scanner.firstWord);
    scanner.result.reads = Contains(Queries, scanner.firstWord) && !scanner.hasWrite;
    return scanner.result;
}

} // namespace Orvane
