// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <memory>

struct sqlite3_session;

namespace Orvane {

class SqliteConnection;

/// Notes which rows of a layer database change while it lives, in all tables that have a primary key, the
/// host's own included. What was rolled back does not count, nor does what another program changed.
///
///     const auto recorder = database.RecordChanges();
///     ... change rows ...
///     const Changeset changes = recorder->Changes();
///
/// Destroy it before the database.
class ChangeRecorder
{
public:
    /// The connection outlives this object.
    explicit ChangeRecorder(SqliteConnection& connection);
    ~ChangeRecorder();
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;

    /// What changed until now. Raises errors of the database.
    Changeset Changes() const;

private:
    struct Closer {
        void operator()(sqlite3_session* session) const;
    };

    SqliteConnection& m_connection;
    std::unique_ptr<sqlite3_session, Closer> m_session;
};

} // namespace Orvane
