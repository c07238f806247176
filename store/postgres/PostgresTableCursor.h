// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/RowUpdates.h"
#include "store/postgres/RowsAhead.h"
#include "store/shared/ColumnMap.h"
#include "store/shared/PendingEdit.h"

#include <OrvaneShellLib/IRecordset.h>

#include <QtGlobal>

#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

class SoughtRows;
struct PostgresSession;
struct SoughtTable;

/// A cursor over one table: rows are looked up by key, read and edited.
class PostgresTableCursor final : public IRecordset
{
public:
    /// The session, and the rows that belong to it, must outlive the cursor.
    PostgresTableCursor(PostgresSession& session, SoughtRows& rows);

private:
    void IRecordset_Index(std::string_view indexName) override;
    void IRecordset_Seek(std::string_view comparison, qint32 key) override;
    bool IRecordset_NoMatch() const override { return m_noMatch; }
    bool IRecordset_AtEOF() const override { return !m_hasRow; }
    void IRecordset_MoveNext() override;
    Value IRecordset_Field(std::string_view columnName) const override;
    void IRecordset_SetField(std::string_view columnName, const Value& value) override;
    void IRecordset_Edit() override;
    void IRecordset_Update() override;
    void IRecordset_Close() override;

    /// Columns that were set in one edit.
    struct ColumnSet {
        std::vector<int> positions;
        std::shared_ptr<const UpdatedColumns> columns;
    };

    bool Stand(const std::optional<TableRow>& row) const;
    void ReadColumns() const;
    void EnsureFresh() const;
    void RequireRow() const;
    void RequireEdit() const;
    int PositionOf(std::string_view columnName) const;
    std::shared_ptr<const UpdatedColumns> ColumnsSet();
    ColumnSet NewColumnSet() const;
    RowUpdate UpdateOf(std::shared_ptr<const UpdatedColumns> columns) const;
    bool IsSureToFit(const UpdatedColumns& columns) const;
    void StoreEdit();
    void StoreAtOnce(const RowUpdate& update);
    void DropEdit();
    void RequireAsRead() const;

    PostgresSession& m_session;
    SoughtRows& m_rows;
    const SoughtTable& m_table;
    mutable TableRow m_row;
    std::optional<TableRow>
        m_rowRead; // what the caller may know, before the transaction began again for the edit
    mutable ColumnMap m_columns;
    mutable quint64 m_stamp = 0; // of the rows, when the row was found
    PendingEdit m_edit;
    std::vector<ColumnSet> m_columnSets; // of earlier edits
    qint32 m_key = 0;
    bool m_hasRow = false;
    bool m_indexChosen = false;
    bool m_noMatch = false;
    bool m_editing = false;
    bool m_closed = false;
};

} // namespace Orvane
