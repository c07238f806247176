// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerRows.h"
#include "store/shared/ColumnMap.h"

#include <OrvaneShellLib/IRecordset.h>

namespace Orvane {

struct PostgresSession;

/// The rows of a query, forward only and read-only, as they were when it was opened.
class PostgresQueryCursor final : public IRecordset
{
public:
    /// Starts on the first row. The session must outlive the cursor.
    PostgresQueryCursor(const PostgresSession& session, const ServerRows& rows);
    /// Has only the row with that number.
    PostgresQueryCursor(const PostgresSession& session, const ServerRows& rows, int number);

private:
    void IRecordset_Index(std::string_view indexName) override;
    void IRecordset_Seek(std::string_view comparison, qint32 key) override;
    bool IRecordset_NoMatch() const override { return false; }
    bool IRecordset_AtEOF() const override { return m_row >= m_end; }
    void IRecordset_MoveNext() override;
    Value IRecordset_Field(std::string_view columnName) const override;
    void IRecordset_SetField(std::string_view columnName, const Value& value) override;
    void IRecordset_Edit() override;
    void IRecordset_Update() override;
    void IRecordset_Close() override;

    void RequireRow() const;
    [[noreturn]] void RaiseReadOnly() const;

    const PostgresSession& m_session;
    ServerRows m_rows;
    mutable ColumnMap m_columns;
    int m_row = 0;
    int m_end = 0;
};

} // namespace Orvane
