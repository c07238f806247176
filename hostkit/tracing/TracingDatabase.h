// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ForwardingDatabase.h>
#include <OrvaneShellLib/ForwardingRecordset.h>

namespace Orvane {

class CallTrace;

/// Traces every call to a cursor, as "recordset.Member(...)".
class TracingRecordset : public ForwardingRecordset
{
public:
    /// trace: not owned; outlives this object.
    TracingRecordset(std::unique_ptr<IRecordset> recordset, CallTrace& trace);

protected:
    void IRecordset_Index(std::string_view indexName) override;
    /// Written with the result: "found" or "no match".
    void IRecordset_Seek(std::string_view comparison, qint32 key) override;
    bool IRecordset_NoMatch() const override;
    bool IRecordset_AtEOF() const override;
    void IRecordset_MoveNext() override;
    Value IRecordset_Field(std::string_view columnName) const override;
    void IRecordset_SetField(std::string_view columnName, const Value& value) override;
    void IRecordset_Edit() override;
    void IRecordset_Update() override;
    void IRecordset_Close() override;

private:
    CallTrace& m_trace;
};

/// Traces every call to a layer database, as "database.Member(...)", and to all cursors that it opens.
class TracingDatabase : public ForwardingDatabase
{
public:
    /// Neither is owned; both outlive this object and its cursors.
    TracingDatabase(ILayerDatabase& database, CallTrace& trace);

protected:
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
    void ILayerDatabase_BeginTrans() override;
    void ILayerDatabase_CommitTrans() override;
    void ILayerDatabase_Rollback() override;

private:
    CallTrace& m_trace;
};

} // namespace Orvane
