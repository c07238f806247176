// SPDX-License-Identifier: MIT
#pragma once

#include "store/sqlite/OpenRows.h"
#include "store/sqlite/engine/StatementPool.h"

#include <OrvaneShellLib/IRecordset.h>

#include <deque>
#include <exception>
#include <vector>

namespace Orvane {

struct SqliteSession;

/// The rows of a query, forward only and read-only.
class QueryCursor final : public IRecordset, private OpenRow
{
public:
    /// Starts on the first row. statement: bound, but not yet run. The session must outlive the cursor.
    QueryCursor(SqliteSession& session, StatementLease statement);
    ~QueryCursor() override;

private:
    void IRecordset_Index(std::string_view indexName) override;
    void IRecordset_Seek(std::string_view comparison, qint32 key) override;
    bool IRecordset_NoMatch() const override { return false; }
    bool IRecordset_AtEOF() const override { return m_atEOF; }
    void IRecordset_MoveNext() override;
    Value IRecordset_Field(std::string_view columnName) const override;
    void IRecordset_SetField(std::string_view columnName, const Value& value) override;
    void IRecordset_Edit() override;
    void IRecordset_Update() override;
    void IRecordset_Close() override;

    void ReleaseRow() override;
    void StepStatement();
    bool StepWhileKeeping();
    std::vector<Value> CurrentRow() const;
    [[noreturn]] void RaiseReadOnly() const;

    SqliteSession& m_session;
    StatementLease m_statement;
    std::deque<std::vector<Value>> m_kept; // rows that were read ahead, the current one first
    std::exception_ptr m_cutShort; // why there are no rows after those
    bool m_released = false; // the statement has ended
    bool m_atEOF = false;
};

} // namespace Orvane
