// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"

#include "store/SqliteConnection.h"

#include <sqlite3.h>

namespace Orvane {

void ChangeRecorder::Closer::operator()(sqlite3_session* session) const
{
    sqlite3session_delete(session);
}

ChangeRecorder::ChangeRecorder(SqliteConnection& connection) : m_connection(connection)
{
    sqlite3_session* session = nullptr;
    int result = sqlite3session_create(connection.Handle(), "main", &session);
    m_session.reset(session);
    if (result == SQLITE_OK)
        result = sqlite3session_attach(session, nullptr);
    if (result != SQLITE_OK)
        connection.Raise(result);
}

ChangeRecorder::~ChangeRecorder() = default;

Changeset ChangeRecorder::Changes() const
{
    int size = 0;
    void* memory = nullptr;
    const int result = sqlite3session_changeset(m_session.get(), &size, &memory);
    if (result != SQLITE_OK)
        m_connection.Raise(result);
    const QByteArray bytes(static_cast<const char*>(memory), size);
    sqlite3_free(memory);
    return Changeset(bytes);
}

} // namespace Orvane
