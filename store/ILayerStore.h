// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

class ChangeRecorder;
class Changeset;
struct StoreTable;

/// A layer database as the host kit works with it, whatever keeps the rows.
///
/// Statements are standard SQL that SQLite and PostgreSQL both understand: names are not quoted and differ in
/// more than case, parameters are ?1, ?2 ..., "ON CONFLICT" instead of "INSERT OR ...", tables are made with
/// PrepareTable. All calls are made on one thread. Errors are RunTimeErrors that name the store.
///
/// Cursors: destroy them before the store. A query cursor may return rows as they were when it was opened or
/// as they are when it reaches them; read inside a transaction to get one consistent state. A table cursor
/// survives changes made by other cursors, commits and rollbacks; it reads its row again after its Update,
/// and raises if the row is gone. Query cursors that are open while rows are changed may be read into memory,
/// so close long ones first.
class ILayerStore : public ILayerDatabase
{
public:
    /// Runs one statement; values are bound to its parameters ?1, ?2 ... in order, booleans as such or as 0
    /// and 1. Result rows are discarded. Returns how many rows it changed, 0 for one that only reads.
    virtual qint64 Execute(const QString& sql, const std::vector<Value>& values = {}) = 0;

    /// A cursor over a query with parameters. The caller owns it and destroys it before the store.
    virtual std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {})
        = 0;

    /// Creates the table if it is missing, and adds the columns that an older one lacks.
    virtual void PrepareTable(const StoreTable& table) = 0;
    /// True when there is a table of that name.
    virtual bool HasTable(const QString& table) = 0;
    /// True when the table exists and has that column.
    virtual bool HasColumn(const QString& table, const QString& column) = 0;

    /// Records changes from now on; the caller owns the recorder and destroys it before the store.
    virtual std::unique_ptr<ChangeRecorder> RecordChanges() = 0;
    /// Applies changes that were recorded in this store, in one transaction, and returns what actually
    /// changed: more than requested if rows were deleted together with others that they refer to. Returns
    /// nothing, and changes nothing, if a row is not as the changes expect it or another row is in its place.
    /// A row to be deleted may already be gone.
    virtual std::optional<Changeset> Apply(const Changeset& changes) = 0;
    /// A number that differs from an earlier one when others have committed changes in between. Changes made
    /// through this object do not count.
    virtual qint64 ForeignChanges() = 0;

    /// True when rows cannot be changed.
    virtual bool IsReadOnly() const = 0;
    /// The store's place: for a file its path as it was given, empty for one in memory.
    virtual QString Path() const = 0;
    /// Stores a copy of everything, as it is at one moment, in a new layer database file. Raises
    /// DatabaseFailure if the file exists or cannot be written.
    virtual void CopyToFile(const QString& path) = 0;

    /// The listener is called with the text of each statement as it starts to run, with parameters as "?1";
    /// an empty function removes it. It must not use the store.
    virtual void SetQueryListener(std::function<void(const QString& sql)> listener) = 0;
};

} // namespace Orvane
