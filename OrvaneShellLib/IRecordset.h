// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/Value.h>

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
/// A query cursor is on its first row when it is opened and only moves forward. A table cursor has no row
/// until Seek finds one. Column and index names are ASCII and are compared case-insensitively. All calls are
/// made on the user-interface thread. Every member may raise RunTimeError with a database number; after a
/// cursor has raised, it may only be closed. Destroying a cursor closes it and discards an edit that was not
/// stored.
class IRecordset
{
public:
    virtual ~IRecordset() = default;
    IRecordset(const IRecordset&) = delete;
    IRecordset& operator=(const IRecordset&) = delete;

    /// Table cursors only: chooses the index that Seek uses, "LayerIDIDX" on Layers and "IDIDX" on
    /// LayerGroups.
    void Index(std::string_view indexName) { IRecordset_Index(indexName); }

    /// Table cursors only: moves to the row whose index column equals key. comparison must be "="; anything
    /// else raises.
    void Seek(std::string_view comparison, qint32 key) { IRecordset_Seek(comparison, key); }

    /// True when the last Seek found no row; the cursor then has no current row.
    bool NoMatch() const { return IRecordset_NoMatch(); }

    /// True when there is no current row: the cursor is past the last one, or there are no rows.
    bool AtEOF() const { return IRecordset_AtEOF(); }

    /// Moves to the next row and discards an edit that was not stored. Call it only while AtEOF is false.
    void MoveNext() { IRecordset_MoveNext(); }

    /// The value of a column in the current row; Null where the database holds NULL. During an edit, a column
    /// that was set returns the new value.
    Value Field(std::string_view columnName) const { return IRecordset_Field(columnName); }

    /// Sets a column of the row being edited; nothing is stored until Update. Call it only between Edit and
    /// Update. Raises 13 (type mismatch) for Empty, which is not a column value.
    void SetField(std::string_view columnName, const Value& value) { IRecordset_SetField(columnName, value); }

    /// Starts editing the current row.
    void Edit() { IRecordset_Edit(); }

    /// Stores only the columns that were set since Edit; the cursor stays on the row. If none were set,
    /// nothing is written.
    void Update() { IRecordset_Update(); }

    /// Closes the cursor; after that it may only be destroyed. A second call does nothing.
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
