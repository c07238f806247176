// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/shared/StoreErrors.h"
#include "store/sqlite/engine/LockPatience.h"
#include "store/sqlite/engine/StatementWatch.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

struct sqlite3;

namespace Orvane {

/// One open SQLite database. Closes it when destroyed; destroy everything that was created with it first.
///
/// The file may come from an unknown source. Triggers in it do not run, views in it cannot be read (temporary
/// ones can be used), and the size of statements is limited.
class SqliteConnection
{
public:
    /// How the file is accessed.
    enum class Access {
        ReadWrite,
        QueryOnly, ///< refuses writes, but removes its extra files like a writer: for a file that could be
                   ///< written
        ReadOnly, ///< for a file that cannot be written and has a journal next to it
        Immutable, ///< takes no lock and creates no extra file: only while no other program writes
    };

    /// Opens the file, which must exist, or a new database in memory when path is empty. Raises
    /// DatabaseFailure if the file or a journal of it is not a regular file.
    SqliteConnection(const QString& path, Access access, const StoreOptions& options);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    /// Closes the database before the object is destroyed, to learn whether that works. Nothing else may be
    /// called afterwards.
    void Close();

    sqlite3* Handle() const { return m_handle.get(); }
    const StoreErrors& Errors() const { return m_errors; }
    /// How it waits for locks.
    LockPatience& Patience() { return m_patience; }
    /// What looks at its statements while they run.
    StatementWatch& Watch() { return m_watch; }
    /// Raises DatabaseFailure while the watcher of the statements runs: SQLite cannot be used then.
    void RequireUsable() const;
    /// The path that was passed to the constructor.
    const QString& Path() const { return m_path; }
    /// True when rows cannot be changed, whatever access was requested.
    bool IsReadOnly() const;
    /// True while no transaction is open.
    bool IsAutoCommit() const;

    /// Runs statements without parameters; result rows are discarded.
    void Run(const QByteArray& sql);
    /// The first column of the first row as text, empty if there is no row.
    QString Text(const QByteArray& sql);
    /// As Text, as a number.
    qint32 Number(const QByteArray& sql) { return Text(sql).toInt(); }
    /// The error of a result code, with SQLite's message for what failed last.
    RunTimeError ErrorOf(int resultCode) const;
    /// Raises ErrorOf.
    [[noreturn]] void Raise(int resultCode) const;

    /// The listener is called with the text of each statement as it starts to run; an empty function removes
    /// it. It must not use the database.
    void SetQueryListener(std::function<void(const QString&)> listener);

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    QString m_path;
    Access m_access;
    StoreErrors m_errors;
    LockPatience m_patience; // outlives the handle, which uses it
    StatementWatch m_watch; // as above
    std::unique_ptr<sqlite3, Closer> m_handle;
    std::function<void(const QString&)> m_listener;
};

} // namespace Orvane
