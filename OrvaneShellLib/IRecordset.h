// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <string_view>

namespace Orvane {

/// A cursor over the rows of one query or of one table, implemented by the host.
///
///     auto layers = client.LayersTable();
///     layers->Index("LayerIDIDX");
///     layers->Seek("=", 17);
///     if (!layers->NoMatch())
///         name = layers->Field("Name");
///
/// A query cursor stands on its first row when it is opened and moves forward only. A table cursor has no row
/// until Seek finds one. Column and index names are ASCII and compared without case. All calls are made on
/// the user-interface thread. Every member may raise RunTimeError with a database number; a cursor that
/// raised may only be closed. Destroying a cursor closes it and drops an edit that was not stored.
class IRecordset
{
public:
    virtual ~IRecordset() = default;
    IRecordset(const IRecordset&) = delete;
    IRecordset& operator=(const IRecordset&) = delete;

    /// Table cursors only: chooses the index that Seek uses, "LayerIDIDX" on Layers and "IDIDX" on
    /// LayerGroups.
    void Index(std::string_view indexName) { IRecordset_Index(indexName); }

    /// Table cursors only: goes to the row whose index column equals key. comparison is "="; any other
    /// raises.
    void Seek(std::string_view comparison, qint32 key) { IRecordset_Seek(comparison, key); }

    /// True when the last Seek found no row; the cursor then has no current row.
    bool NoMatch() const { return IRecordset_NoMatch(); }

    /// True when there is no current row: past the last one, or none at all.
    bool AtEOF() const { return IRecordset_AtEOF(); }

    /// Goes to the next row, dropping an edit that was not stored. Only while not AtEOF.
    void MoveNext() { IRecordset_MoveNext(); }

    /// The current row's column; Null where the database has none. While an edit runs, a column that was set
    /// gives the value that was set.
    Value Field(std::string_view columnName) const { return IRecordset_Field(columnName); }

    /// Sets a column of the row being edited; nothing is stored before Update. Only between Edit and Update.
    /// Raises 13 (type mismatch) for Empty, which is no value of a column.
    void SetField(std::string_view columnName, const Value& value) { IRecordset_SetField(columnName, value); }

    /// Begins an edit of the current row.
    void Edit() { IRecordset_Edit(); }

    /// Stores the columns that were set since Edit, and only those; the cursor stays on the row. With none
    /// set, nothing is written.
    void Update() { IRecordset_Update(); }

    /// Ends the cursor; only destruction may follow. A second call does nothing.
    void Close() { IRecordset_Close(); }

protected:
    IRecordset() = default;

private:
    virtual void IRecordset_Index(std::string_view indexName) = 0;
    virtual void IRecordset_Seek(std::string_view comparison, qint32 key) = 0;
    virtual bool IRecordset_NoMatch() const = 0;
    virtual bool IRecordset_AtEOF() const = 0;
    virtual void IRecordset_MoveNext() = 0;
    virtual Value IRecordset_Field(std::string_view columnName) const = 0;
    virtual void IRecordset_SetField(std::string_view columnName, const Value& value) = 0;
    virtual void IRecordset_Edit() = 0;
    virtual void IRecordset_Update() = 0;
    virtual void IRecordset_Close() = 0;
};

} // namespace Orvane
