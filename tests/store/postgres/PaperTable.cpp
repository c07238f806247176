// SPDX-License-Identifier: MIT
#include "store/postgres/PaperTable.h"

#include <libpq-fe.h>
#include <string>

namespace Orvane::Testing {

namespace {

void Put(pg_result* result, int row, int column, int value)
{
    std::string text = std::to_string(value);
    PQsetvalue(result, row, column, text.data(), int(text.size()));
}

} // namespace

void PaperTable::Remove(qint32 key)
{
    m_contents.erase(key);
    m_sent.erase(key);
}

void PaperTable::ChangeState()
{
    m_sent = m_contents;
    ++m_state;
}

void PaperTable::Send(Written written)
{
    ++reads;
    if (written == Written::Needed)
        m_sent = m_contents;
}

ServerRows PaperTable::Rows(const std::vector<qint32>& keys, Written written)
{
    Send(written);
    Contents found;
    for (const qint32 key : keys) {
        if (const auto row = m_sent.find(key); row != m_sent.end())
            found.insert(*row);
    }
    return Answer(found);
}

ServerRows PaperTable::RowsFrom(qint32 key, int count, Written written)
{
    Send(written);
    Contents found;
    for (auto row = m_sent.lower_bound(key); row != m_sent.end() && count > 0; ++row, --count)
        found.insert(*row);
    return Answer(found);
}

// As the server answers, with the largest key first.
ServerRows PaperTable::Answer(const Contents& found)
{
    rowsRead += found.size();
    pg_result* result = PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK);
    char value[] = "value";
    char key[] = "key";
    PGresAttDesc columns[2] = {};
    columns[0].name = value;
    columns[1].name = key;
    PQsetResultAttrs(result, 2, columns);
    int number = 0;
    for (auto row = found.rbegin(); row != found.rend(); ++row, ++number) {
        Put(result, number, 0, row->second);
        Put(result, number, 1, row->first);
    }
    return ServerRows(result);
}

} // namespace Orvane::Testing
