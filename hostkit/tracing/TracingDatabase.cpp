// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingDatabase.h"

#include "hostkit/tracing/CallTrace.h"

namespace Orvane {

TracingRecordset::TracingRecordset(std::unique_ptr<IRecordset> recordset, CallTrace& trace)
    : ForwardingRecordset(std::move(recordset)), m_trace(trace)
{
}

void TracingRecordset::IRecordset_Index(std::string_view indexName)
{
    m_trace.Command(
        "recordset.Index", [&] { Wrapped().Index(indexName); }, indexName);
}

void TracingRecordset::IRecordset_Seek(std::string_view comparison, qint32 key)
{
    const auto seek = [&] {
        Wrapped().Seek(comparison, key);
        return TraceWord{Wrapped().NoMatch() ? "no match" : "found"};
    };
    m_trace.Question("recordset.Seek", seek, comparison, key);
}

bool TracingRecordset::IRecordset_NoMatch() const
{
    return m_trace.Question("recordset.NoMatch", [&] { return Wrapped().NoMatch(); });
}

bool TracingRecordset::IRecordset_AtEOF() const
{
    return m_trace.Question("recordset.AtEOF", [&] { return Wrapped().AtEOF(); });
}

void TracingRecordset::IRecordset_MoveNext()
{
    m_trace.Command("recordset.MoveNext", [&] { Wrapped().MoveNext(); });
}

Value TracingRecordset::IRecordset_Field(std::string_view columnName) const
{
    return m_trace.Question(
        "recordset.Field", [&] { return Wrapped().Field(columnName); }, columnName);
}

void TracingRecordset::IRecordset_SetField(std::string_view columnName, const Value& value)
{
    m_trace.Command(
        "recordset.SetField", [&] { Wrapped().SetField(columnName, value); }, columnName, value);
}

void TracingRecordset::IRecordset_Edit()
{
    m_trace.Command("recordset.Edit", [&] { Wrapped().Edit(); });
}

void TracingRecordset::IRecordset_Update()
{
    m_trace.Command("recordset.Update", [&] { Wrapped().Update(); });
}

void TracingRecordset::IRecordset_Close()
{
    m_trace.Command("recordset.Close", [&] { Wrapped().Close(); });
}

TracingDatabase::TracingDatabase(ILayerDatabase& database, CallTrace& trace)
    : ForwardingDatabase(database), m_trace(trace)
{
}

std::unique_ptr<IRecordset> TracingDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    auto recordset = m_trace.Command(
        "database.OpenRecordset", [&] { return Wrapped().OpenRecordset(source); }, source);
    return std::make_unique<TracingRecordset>(std::move(recordset), m_trace);
}

void TracingDatabase::ILayerDatabase_BeginTrans()
{
    m_trace.Command("database.BeginTrans", [&] { Wrapped().BeginTrans(); });
}

void TracingDatabase::ILayerDatabase_CommitTrans()
{
    m_trace.Command("database.CommitTrans", [&] { Wrapped().CommitTrans(); });
}

void TracingDatabase::ILayerDatabase_Rollback()
{
    m_trace.Command("database.Rollback", [&] { Wrapped().Rollback(); });
}

} // namespace Orvane
