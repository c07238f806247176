// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ILayerDatabase.h>
#include <orvane/OrvaneShellLib/Value.h>
#include <orvane/store/StoreOptions.h>
#include <orvane/store/StoreTable.h>
#include <orvane/store/StoreWatcher.h>

#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

class ChangeRecorder;
class Changeset;
class IChangeNews;

/// A layer database as the host kit uses it, independent of the kind of store.
///
/// Statements are standard SQL that SQLite and PostgreSQL both understand: names are not quoted and must
/// differ in more than case, parameters are ?1, ?2 ..., "ON CONFLICT" is used instead of "INSERT OR ...", and
/// tables are created with PrepareTable. All calls are made on one thread. Errors are RunTimeErrors that name
/// the store.
///
/// Cursors: destroy them before the store. A query cursor may return rows as they were when it was opened or
/// as they are when it reaches them; read inside a transaction to get one consistent state. A table cursor
/// stays usable after changes made by other cursors, commits and rollbacks; it reads its row again after its
/// Update, and raises if the row is gone. Query cursors that are open while rows are changed may be read into
/// memory, so close long ones first.
///
/// A store on a server may keep the writes of a transaction until it is read from or committed. It shows them
/// to its own cursors at once. An Update of a row that is gone, or of a value that is refused, then raises
/// there instead of in Update. It may also read rows before they are sought: outside of a transaction, a
/// table cursor then gives a row as it was at any time since the present action of the user began.
///
/// Errors never leave half of a transaction in the store: after an error that ends a transaction, or leaves
/// it uncertain, each further write in it raises until its outermost level is rolled back. If a store cannot
/// undo what failed, it refuses everything else until it can. Transactions begin and end with BeginTrans,
/// CommitTrans and Rollback, never with a statement.
class ILayerStore : public ILayerDatabase
{
public:
    /// Runs one statement; values are bound to its parameters ?1, ?2 ... in order, booleans as booleans or as
    /// 0 and 1. Result rows are discarded. Returns how many rows it changed, 0 for a statement that only
    /// reads.
    virtual qint64 Execute(const QString& sql, const std::vector<Value>& values = {}) = 0;

    /// As Execute, for a caller that does not need the number of rows: a store on a server may keep the
    /// statement until the transaction is read from or committed, and raises then what Execute raises.
    virtual void Send(const QString& sql, const std::vector<Value>& values = {}) { Execute(sql, values); }

    /// A cursor over a query with parameters. The caller owns it and destroys it before the store.
    virtual std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {})
        = 0;

    /// Creates the table if it is missing, and adds the columns that an older table lacks.
    virtual void PrepareTable(const StoreTable& table) = 0;
    /// True when there is a table of that name.
    virtual bool HasTable(const QString& table) = 0;
    /// True when the table exists and has that column.
    virtual bool HasColumn(const QString& table, const QString& column) = 0;
    /// All tables with their columns, those of layers and groups too; PrepareTable could make each of them
    /// elsewhere. What StoreTable has no words for is left out, such as a default that is computed. In a
    /// file, flags in tables of layers and of earlier versions count as whole numbers. Empty for a kind of
    /// store that cannot tell.
    virtual std::vector<StoreTable> Tables() { return {}; }

    /// Records changes from now on; the caller owns the recorder and destroys it before the store.
    virtual std::unique_ptr<ChangeRecorder> RecordChanges() = 0;
    /// Applies changes that were recorded in this store, in one transaction, and returns what actually
    /// changed: this is more than requested if rows were deleted because they refer to deleted rows. Returns
    /// nothing, and changes nothing, if a row is not as the changes expect it or another row is in its place.
    /// A row to be deleted may already be missing.
    virtual std::optional<Changeset> Apply(const Changeset& changes) = 0;
    /// A number that differs from the one returned earlier if other connections have committed changes since
    /// then. Changes made through this object do not count.
    virtual qint64 ForeignChanges() = 0;
    /// Tells what others change, and who has the store open; nullptr for a store that does not tell: ask
    /// ForeignChanges there. Owned by the store.
    virtual IChangeNews* News() { return nullptr; }

    /// The watcher is called now and then while statements run, and by AskWatcher. When it returns false, the
    /// running operation raises UserCancelled, as does everything else until the next call of SetWatcher;
    /// commits and rollbacks are never ended. An empty function removes the watcher.
    virtual void SetWatcher(StoreWatcher watcher) = 0;
    /// Calls the watcher, for a loop of the caller that belongs to the watched operation. done: as in
    /// StoreWatcher. Raises UserCancelled.
    virtual void AskWatcher(double done = UnknownShare) = 0;

    /// True when rows cannot be changed.
    virtual bool IsReadOnly() const = 0;
    /// The location of the store: for a file the path as it was given, empty for a store in memory.
    virtual QString Path() const = 0;
    /// Stores a consistent copy of everything in a new layer database file, which appears at that path when
    /// it is complete; before that, change may change the copy. A file that is replaced stays as it was if
    /// anything fails, on a full disk too. Raises DatabaseFailure if the file exists and is to stay, or
    /// cannot be written, DatabaseLocked if the file to be replaced is open anywhere, and what change raises.
    virtual void
    CopyToFile(const QString& path, IfExists ifExists = IfExists::Refuse, const StoreFiller& change = {})
        = 0;

    /// The listener is called with the text of each statement as it starts to run, with parameters as "?1";
    /// an empty function removes it. It must not use the store.
    virtual void SetQueryListener(std::function<void(const QString& sql)> listener) = 0;
};

} // namespace Orvane
