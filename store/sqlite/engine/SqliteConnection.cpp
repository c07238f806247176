// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/SqliteConnection.h"

#include "store/StoreTexts.h"
#include "store/sqlite/engine/NoMemoryError.h"
#include "store/sqlite/engine/RegularFiles.h"
#include "store/sqlite/engine/SqliteErrors.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QFileInfo>
#include <QUrl>

#include <array>
#include <sqlite3.h>
#include <utility>

namespace Orvane {

namespace {

int OpenFlags(SqliteConnection::Access access)
{
    using Access = SqliteConnection::Access;
    const bool writes = access == Access::ReadWrite || access == Access::QueryOnly;
    // All calls come from one thread, so that the connection needs no mutex.
    return (writes ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY) | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI
        | SQLITE_OPEN_EXRESCODE;
}

QByteArray OpenName(const QString& path, SqliteConnection::Access access)
{
    if (path.isEmpty())
        return ":memory:";
    const QByteArray uri = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded();
    return access == SqliteConnection::Access::Immutable ? uri + "?immutable=1" : uri;
}

// The file may come from an unknown source: its schema must not be able to run code or corrupt the program.
void Harden(sqlite3* handle)
{
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_FKEY, 1, nullptr);
    // Those that this program makes as temporary ones still work.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

// Far above what any statement here needs, far below what a crafted schema could use.
void Limit(sqlite3* handle)
{
    constexpr std::array limits = {
        std::pair(SQLITE_LIMIT_SQL_LENGTH, 1'000'000), // bytes
        std::pair(SQLITE_LIMIT_COLUMN, 500),
        std::pair(SQLITE_LIMIT_EXPR_DEPTH, 200),
        std::pair(SQLITE_LIMIT_COMPOUND_SELECT, 50),
        std::pair(SQLITE_LIMIT_VDBE_OP, 250'000),
        std::pair(SQLITE_LIMIT_ATTACHED, 1), // a copy is made through one
        std::pair(SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 1000), // bytes
        std::pair(SQLITE_LIMIT_VARIABLE_NUMBER, 1000),
        std::pair(SQLITE_LIMIT_TRIGGER_DEPTH, 100), // removing what refers to a row counts too
        std::pair(SQLITE_LIMIT_WORKER_THREADS, 0),
    };
    for (const auto& [limit, most] : limits)
        sqlite3_limit(handle, limit, most);
}

int TellListener(unsigned, void* listener, void*, void* sql)
{
    const auto& tell = *static_cast<std::function<void(const QString&)>*>(listener);
    try {
        tell(QString::fromUtf8(static_cast<const char*>(sql)));
    } catch (...) {
        // An exception must not pass through SQLite's frames.
    }
    return 0;
}

} // namespace

void SqliteConnection::Closer::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
}

SqliteConnection::SqliteConnection(const QString& path, Access access, const StoreOptions& options)
    : m_path(path), m_access(access), m_errors(options.shownPath.isEmpty() ? path : options.shownPath),
      m_patience(options.busyTimeout)
{
    if (!path.isEmpty())
        RequireRegularFiles(path, m_errors);
    sqlite3* handle = nullptr;
    const int result
        = sqlite3_open_v2(OpenName(path, access).constData(), &handle, OpenFlags(access), nullptr);
    m_handle.reset(handle);
    if (result != SQLITE_OK)
        Raise(result);
    m_patience.Attach(handle);
    m_watch.Attach(handle);
    Harden(handle);
    Limit(handle);
    Run("PRAGMA cell_size_check = ON");
    if (access == Access::QueryOnly)
        Run("PRAGMA query_only = ON");
}

SqliteConnection::~SqliteConnection() = default;

void SqliteConnection::Close()
{
    const int result = sqlite3_close(Handle());
    if (result != SQLITE_OK)
        Raise(result);
    static_cast<void>(m_handle.release()); // is closed
}

bool SqliteConnection::IsReadOnly() const
{
    return m_access != Access::ReadWrite || sqlite3_db_readonly(Handle(), "main") == 1;
}

bool SqliteConnection::IsAutoCommit() const
{
    return sqlite3_get_autocommit(Handle()) != 0;
}

void SqliteConnection::RequireUsable() const
{
    if (m_watch.IsAsking())
        throw m_errors.Failure(StoreTexts::Working);
}

void SqliteConnection::Run(const QByteArray& sql)
{
    RequireUsable();
    const int result = sqlite3_exec(Handle(), sql.constData(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        Raise(result);
}

QString SqliteConnection::Text(const QByteArray& sql)
{
    RequireUsable();
    QString text;
    const auto keepFirst = [](void* target, int, char** values, char**) {
        auto& result = *static_cast<QString*>(target);
        try {
            if (result.isNull())
                result = QString::fromUtf8(values[0] ? values[0] : "");
            return 0;
        } catch (...) { // an exception must not pass through SQLite's frames
            return 1;
        }
    };
    const int result = sqlite3_exec(Handle(), sql.constData(), keepFirst, &text, nullptr);
    if (result != SQLITE_OK)
        Raise(result);
    return text;
}

RunTimeError SqliteConnection::ErrorOf(int resultCode) const
{
    if ((resultCode & 0xFF) == SQLITE_INTERRUPT && m_watch.IsCancelled())
        return m_errors.Error(UserCancelled, StoreTexts::Cancelled);
    const char* message = Handle() ? sqlite3_errmsg(Handle()) : sqlite3_errstr(resultCode);
    return SqliteError(m_errors, resultCode, message);
}

void SqliteConnection::Raise(int resultCode) const
{
    const RunTimeError error = ErrorOf(resultCode);
    if ((resultCode & 0xFF) == SQLITE_NOMEM)
        throw NoMemoryError(error);
    throw error;
}

void SqliteConnection::SetQueryListener(std::function<void(const QString&)> listener)
{
    m_listener = std::move(listener);
    const unsigned events = m_listener ? SQLITE_TRACE_STMT : 0;
    sqlite3_trace_v2(Handle(), events, m_listener ? TellListener : nullptr, &m_listener);
}

} // namespace Orvane
