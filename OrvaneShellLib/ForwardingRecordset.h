// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IRecordset.h>

#include <memory>
#include <utility>

namespace Orvane {

/// Passes every call on to another cursor, which it owns. Derive from it and override the member to watch,
/// change or block.
class ForwardingRecordset : public IRecordset
{
public:
    /// recordset: not null.
    explicit ForwardingRecordset(std::unique_ptr<IRecordset> recordset)
        : m_recordset(std::move(recordset)) { }

protected:
    void IRecordset_Index(std::string_view indexName) override { m_recordset->Index(indexName); }
    void IRecordset_Seek(std::string_view comparison, qint32 key) override
    {
        m_recordset->Seek(comparison, key);
    }
    bool IRecordset_NoMatch() const override { return m_recordset->NoMatch(); }
    bool IRecordset_AtEOF() const override { return m_recordset->AtEOF(); }
    void IRecordset_MoveNext() override { m_recordset->MoveNext(); }
    Value IRecordset_Field(std::string_view columnName) const override
    {
        return m_recordset->Field(columnName);
    }
    void IRecordset_SetField(std::string_view columnName, const Value& value) override
    {
        m_recordset->SetField(columnName, value);
    }
    void IRecordset_Edit() override { m_recordset->Edit(); }
    void IRecordset_Update() override { m_recordset->Update(); }
    void IRecordset_Close() override { m_recordset->Close(); }

    /// The wrapped cursor, for use in overrides.
    IRecordset& Wrapped() const { return *m_recordset; }

private:
    std::unique_ptr<IRecordset> m_recordset;
};

} // namespace Orvane
