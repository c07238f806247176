// SPDX-License-Identifier: MIT
#include "hosts/RecordingDatabase.h"

#include <OrvaneShellLib/ForwardingRecordset.h>

#include <new>

namespace Orvane::Testing {

namespace {

QString Latin(std::string_view text)
{
    return QString::fromLatin1(text.data(), qsizetype(text.size()));
}

class RecordingRecordset : public ForwardingRecordset
{
public:
    RecordingRecordset(std::unique_ptr<IRecordset> cursor, CallLog& log)
        : ForwardingRecordset(std::move(cursor)), m_log(log)
    {
    }

protected:
    void IRecordset_Index(std::string_view indexName) override
    {
        m_log.Add(CallKind::Database, "Index", {Latin(indexName)});
        ForwardingRecordset::IRecordset_Index(indexName);
    }
    void IRecordset_Seek(std::string_view comparison, qint32 key) override
    {
        m_log.Add(CallKind::Database, "Seek", {Latin(comparison), key});
        ForwardingRecordset::IRecordset_Seek(comparison, key);
    }
    Value IRecordset_Field(std::string_view columnName) const override
    {
        m_log.Add(CallKind::Read, "Field", {Latin(columnName)});
        return ForwardingRecordset::IRecordset_Field(columnName);
    }
    void IRecordset_SetField(std::string_view columnName, const Value& value) override
    {
        m_log.Add(CallKind::Database, "SetField", {Latin(columnName), value});
        ForwardingRecordset::IRecordset_SetField(columnName, value);
    }
    void IRecordset_Edit() override
    {
        m_log.Add(CallKind::Database, "Edit");
        ForwardingRecordset::IRecordset_Edit();
    }
    void IRecordset_Update() override
    {
        m_log.Add(CallKind::Database, "Update");
        ForwardingRecordset::IRecordset_Update();
    }

private:
    CallLog& m_log;
};

} // namespace

std::unique_ptr<IRecordset> RecordingDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    m_log.Add(CallKind::Database, "OpenRecordset", {source});
    return RecordCursor(Wrapped().OpenRecordset(source), m_log);
}

void RecordingDatabase::ILayerDatabase_BeginTrans()
{
    m_log.Add(CallKind::Database, "BeginTrans");
    Wrapped().BeginTrans();
}

void RecordingDatabase::ILayerDatabase_CommitTrans()
{
    m_log.Add(CallKind::Database, "CommitTrans");
    Wrapped().CommitTrans();
}

void RecordingDatabase::ILayerDatabase_Rollback()
{
    try {
        m_log.Add(CallKind::Database, "Rollback");
    } catch (const std::bad_alloc&) { // a host rolls back without memory too
    }
    Wrapped().Rollback();
}

std::unique_ptr<IRecordset> RecordCursor(std::unique_ptr<IRecordset> cursor, CallLog& log)
{
    return std::make_unique<RecordingRecordset>(std::move(cursor), log);
}

} // namespace Orvane::Testing
