// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerRows.h"

#include "store/shared/IntegerValue.h"

#include <charconv>
#include <libpq-fe.h>
#include <limits>

namespace Orvane {

namespace {

/// PostgreSQL's numbers for its types, which never change.
enum ServerType : Oid {
    BooleanType = 16,
    Int8Type = 20,
    Int2Type = 21,
    Int4Type = 23,
    OidType = 26,
    Float4Type = 700,
    Float8Type = 701,
    NumericType = 1700,
};

qint64 WholeIn(std::string_view text)
{
    qint64 number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

double RealIn(std::string_view text)
{
    if (text == "NaN")
        return std::numeric_limits<double>::quiet_NaN();
    double number = 0; // "Infinity" is read, too
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

ServerRows::ServerRows(pg_result* result) : m_result(result, PQclear)
{
}

int ServerRows::Count() const
{
    return m_result ? PQntuples(m_result.get()) : 0;
}

int ServerRows::ColumnCount() const
{
    return m_result ? PQnfields(m_result.get()) : 0;
}

std::string_view ServerRows::ColumnName(int column) const
{
    const char* name = PQfname(m_result.get(), column);
    return name ? name : "";
}

bool ServerRows::IsNull(int row, int column) const
{
    return PQgetisnull(m_result.get(), row, column) != 0;
}

std::string_view ServerRows::Raw(int row, int column) const
{
    const char* text = PQgetvalue(m_result.get(), row, column);
    return text ? std::string_view(text, size_t(PQgetlength(m_result.get(), row, column))) : "";
}

QString ServerRows::Text(int row, int column) const
{
    const std::string_view text = Raw(row, column);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

qint64 ServerRows::Number(int row, int column) const
{
    return WholeIn(Raw(row, column));
}

Value ServerRows::At(int row, int column, bool isColour) const
{
    if (IsNull(row, column))
        return Value::Null();
    switch (PQftype(m_result.get(), column)) {
    case BooleanType:
        return Flag(row, column);
    case Int2Type:
    case Int4Type:
    case Int8Type:
    case OidType:
        return IntegerValue(WholeIn(Raw(row, column)), isColour);
    case Float4Type:
    case Float8Type:
    case NumericType:
        return RealIn(Raw(row, column));
    default:
        return Text(row, column);
    }
}

qint64 ServerRows::Changed() const
{
    if (!m_result || Done().substr(0, 6) == "SELECT")
        return 0;
    return WholeIn(PQcmdTuples(m_result.get()));
}

std::string_view ServerRows::Done() const
{
    return m_result ? PQcmdStatus(m_result.get()) : "";
}

} // namespace Orvane
