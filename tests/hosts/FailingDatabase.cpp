// SPDX-License-Identifier: MIT
#include "hosts/FailingDatabase.h"

#include <OrvaneShellLib/ForwardingRecordset.h>

namespace Orvane::Testing {

namespace {

class FailingRecordset : public ForwardingRecordset
{
public:
    FailingRecordset(std::unique_ptr<IRecordset> cursor, PlannedFailure& failure)
        : ForwardingRecordset(std::move(cursor)), m_failure(failure)
    {
    }

protected:
    void IRecordset_Index(std::string_view indexName) override
    {
        m_failure.Called("Index");
        ForwardingRecordset::IRecordset_Index(indexName);
    }
    void IRecordset_Seek(std::string_view comparison, qint32 key) override
    {
        m_failure.Called("Seek");
        ForwardingRecordset::IRecordset_Seek(comparison, key);
    }
    void IRecordset_MoveNext() override
    {
        m_failure.Called("MoveNext");
        ForwardingRecordset::IRecordset_MoveNext();
    }
    Value IRecordset_Field(std::string_view columnName) const override
    {
        m_failure.Called("Field");
        return ForwardingRecordset::IRecordset_Field(columnName);
    }
    void IRecordset_SetField(std::string_view columnName, const Value& value) override
    {
        m_failure.Called("SetField");
        ForwardingRecordset::IRecordset_SetField(columnName, value);
    }
    void IRecordset_Edit() override
    {
        m_failure.Called("Edit");
        ForwardingRecordset::IRecordset_Edit();
    }
    void IRecordset_Update() override
    {
        m_failure.Called("Update");
        ForwardingRecordset::IRecordset_Update();
    }

private:
    PlannedFailure& m_failure;
};

} // namespace

std::unique_ptr<IRecordset> FailingDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    m_failure.Called("OpenRecordset");
    return FailInCursor(Wrapped().OpenRecordset(source), m_failure);
}

void FailingDatabase::ILayerDatabase_BeginTrans()
{
    m_failure.Called("BeginTrans");
    Wrapped().BeginTrans();
}

void FailingDatabase::ILayerDatabase_CommitTrans()
{
    m_failure.Called("CommitTrans");
    Wrapped().CommitTrans();
}

void FailingDatabase::ILayerDatabase_Rollback()
{
    m_failure.Called("Rollback");
    Wrapped().Rollback();
}

std::unique_ptr<IRecordset> FailInCursor(std::unique_ptr<IRecordset> cursor, PlannedFailure& failure)
{
    return std::make_unique<FailingRecordset>(std::move(cursor), failure);
}

} // namespace Orvane::Testing
