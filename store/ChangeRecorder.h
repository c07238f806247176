// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <memory>

struct sqlite3_session;

namespace Orvane {

class SqliteConnection;

/// Records which rows of a layer database change during its lifetime, in all tables that have a primary key,
/// including the host's own. Changes that were rolled back or made by another program are not included.
///
///     const auto recorder = database.RecordChanges();
///     ... change rows ...
///     const Changeset changes = recorder->Changes();
///
/// Destroy it before the database.
class ChangeRecorder
{
public:
    /// The connection must outlive this object.
    explicit ChangeRecorder(SqliteConnection& connection);
    ~ChangeRecorder();
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;

    /// The changes so far. Raises database errors.
    Changeset Changes() const;

private:
    struct Closer {
        void operator()(sqlite3_session* session) const;
    };

    SqliteConnection& m_connection;
    std::unique_ptr<sqlite3_session, Closer> m_session;
};

} // namespace Orvane
