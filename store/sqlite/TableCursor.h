// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/PendingEdit.h"
#include "store/sqlite/OpenRows.h"
#include "store/sqlite/engine/StatementPool.h"

#include <OrvaneShellLib/IRecordset.h>

namespace Orvane {

struct SqliteSession;
class TableAccess;

/// A cursor over one table: rows are looked up by key, read and edited. Cheap enough to open one for each
/// row.
class TableCursor final : public IRecordset, private OpenRow
{
public:
    /// The session, and the table that belongs to it, must outlive the cursor.
    TableCursor(SqliteSession& session, TableAccess& table);
    ~TableCursor() override;

private:
    enum class RowState {
        None, ///< before a Seek, after one without a match, past the last row, or closed
        Live, ///< m_row is on the row
        Released, ///< the row is read again when it is needed
    };

    void IRecordset_Index(std::string_view indexName) override;
    void IRecordset_Seek(std::string_view comparison, qint32 key) override;
    bool IRecordset_NoMatch() const override { return m_noMatch; }
    bool IRecordset_AtEOF() const override { return m_state == RowState::None; }
    void IRecordset_MoveNext() override;
    Value IRecordset_Field(std::string_view columnName) const override;
    void IRecordset_SetField(std::string_view columnName, const Value& value) override;
    void IRecordset_Edit() override;
    void IRecordset_Update() override;
    void IRecordset_Close() override;

    void ReleaseRow() override;
    bool GoTo(qint32 key);
    bool Probe(qint32 key);
    bool ReadRow() const;
    void LeaveRow();
    void EnsureLive() const;
    void RequireRow() const;
    void RequireEdit() const;
    int PositionOf(std::string_view columnName) const;
    void StoreEdit();
    void DropEdit();

    SqliteSession& m_session;
    TableAccess& m_table;
    mutable StatementLease m_row;
    StatementLease m_probe;
    PendingEdit m_edit;
    int m_keyPosition = 0;
    qint32 m_key = 0;
    mutable RowState m_state = RowState::None;
    mutable bool m_wasRead = false;
    bool m_indexChosen = false;
    bool m_noMatch = false;
    bool m_editing = false;
    bool m_closed = false;
};

} // namespace Orvane
