// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ILayerDatabase.h>

namespace Orvane {

/// A transaction of a layer database that is undone unless it is committed.
///
///     ModelTransaction transaction(client.Database());
///     ... reads and writes, any of which may raise ...
///     transaction.Commit();
///
/// Declare it before the cursors that work inside it, so that they are closed when it is rolled back.
class ModelTransaction
{
public:
    /// Begins a transaction. database: not owned; outlives this object. Raises what BeginTrans raises.
    explicit ModelTransaction(ILayerDatabase& database);

    /// Rolls back what was not committed. Never raises: a failing rollback must not hide the error that led
    /// to it.
    ~ModelTransaction();

    ModelTransaction(const ModelTransaction&) = delete;
    ModelTransaction& operator=(const ModelTransaction&) = delete;

    /// Keeps the changes; call at most once. What CommitTrans raises is passed on, and the destructor then
    /// rolls back.
    void Commit();

private:
    ILayerDatabase& m_database;
    bool m_open = true;
};

} // namespace Orvane
