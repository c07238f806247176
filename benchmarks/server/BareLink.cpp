// SPDX-License-Identifier: MIT
#include "benchmarks/server/BareLink.h"

#include <libpq-fe.h>
#include <stdexcept>
#include <vector>

namespace Orvane::Benchmarks {

namespace {

const QByteArrayList WrittenColumns
    = {"overridemode", "selectable",    "locked",        "hitable",  "snaprequired",
       "enquirable",   "fillforecolor", "fillbackcolor", "color",    "outlinestyle",
       "fillstyle",    "linethickness", "maxvisscale",   "priority", "style"};

QByteArray TypeOf(const QByteArray& column)
{
    static const QByteArrayList flags = {"selectable", "locked", "hitable", "snaprequired", "enquirable"};
    if (flags.contains(column))
        return "boolean[]";
    return column == "maxvisscale" ? "double precision[]" : "integer[]";
}

// $1 are the keys, $2 says whether they are visible, $3 is the smallest scale.
QByteArray UpdateText()
{
    QByteArrayList assignments = {"visible = v.visible", "minvisscale = v.minvisscale"};
    QByteArrayList names = {"k", "visible", "minvisscale"};
    QByteArrayList arrays = {"$1::integer[]", "$2::boolean[]", "$3::double precision[]"};
    for (const QByteArray& column : WrittenColumns) {
        assignments << column + " = v." + column;
        names << column;
        arrays << '$' + QByteArray::number(arrays.size() + 1) + "::" + TypeOf(column);
    }
    return "UPDATE layers AS t SET " + assignments.join(", ") + " FROM unnest(" + arrays.join(", ")
        + ") AS v (" + names.join(", ") + ") WHERE t.layerid = v.k";
}

QByteArray ArrayOf(const QByteArrayList& values)
{
    return '{' + values.join(',') + '}';
}

QByteArray ArrayOf(const QByteArray& value, qsizetype count)
{
    QByteArrayList values;
    values.reserve(count);
    for (qsizetype number = 0; number < count; ++number)
        values << value;
    return ArrayOf(values);
}

} // namespace

void BareLink::Closer::operator()(pg_conn* connection) const
{
    PQfinish(connection);
}

void BareLink::Clearer::operator()(pg_result* result) const
{
    PQclear(result);
}

BareLink::Result BareLink::Checked(pg_result* result)
{
    Result owned(result);
    const ExecStatusType status = PQresultStatus(result);
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        throw std::runtime_error(PQresultErrorMessage(result));
    return owned;
}

BareLink::BareLink(const ServerMap& map) : m_connection(PQconnectdb(map.Connection().constData()))
{
    Checked(PQexec(m_connection.get(), map.SearchPath().constData()));
    Prepare("list", "SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
    Prepare("members", "SELECT LayerID FROM LayerGroupMembers WHERE GroupID = $1");
    Prepare("layers", "SELECT * FROM Layers WHERE LayerID = ANY ($1::integer[])");
    Prepare("update", UpdateText());
    Prepare("begin", "BEGIN ISOLATION LEVEL REPEATABLE READ");
    Prepare("commit", "COMMIT");
}

void BareLink::Prepare(const char* name, const QByteArray& sql)
{
    Checked(PQprepare(m_connection.get(), name, sql.constData(), 0, nullptr));
}

BareLink::Result BareLink::Run(const char* name, const QByteArrayList& values)
{
    std::vector<const char*> texts;
    texts.reserve(size_t(values.size()));
    for (const QByteArray& value : values)
        texts.push_back(value.constData());
    return Checked(
        PQexecPrepared(m_connection.get(), name, int(texts.size()), texts.data(), nullptr, nullptr, 0));
}

void BareLink::Read(const Result& result)
{
    const int columns = PQnfields(result.get());
    for (int row = 0; row < PQntuples(result.get()); ++row) {
        for (int column = 0; column < columns; ++column)
            m_checksum += PQgetlength(result.get(), row, column) + *PQgetvalue(result.get(), row, column);
    }
}

QByteArrayList BareLink::Members()
{
    const Result result = Run("members", {QByteArray::number(ServerMap::Group)});
    QByteArrayList members;
    members.reserve(PQntuples(result.get()));
    for (int row = 0; row < PQntuples(result.get()); ++row)
        members << PQgetvalue(result.get(), row, 0);
    return members;
}

void BareLink::ReadFlatList()
{
    Read(Run("list"));
}

void BareLink::ReadMembers()
{
    Run("begin");
    Read(Run("layers", {ArrayOf(Members())}));
    Run("commit");
}

void BareLink::WriteMembers(bool visible)
{
    Run("begin");
    const QByteArrayList members = Members();
    Read(Run("layers", {ArrayOf(members)}));
    QByteArrayList values
        = {ArrayOf(members), ArrayOf(visible ? "t" : "f", members.size()), ArrayOf("500.5", members.size())};
    for (const QByteArray& column : WrittenColumns)
        values << ArrayOf(TypeOf(column) == "boolean[]" ? "t" : "7", members.size());
    Run("update", values);
    Run("commit");
}

} // namespace Orvane::Benchmarks
