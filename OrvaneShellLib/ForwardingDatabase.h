// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ILayerDatabase.h>

namespace Orvane {

/// Passes every call on to another layer database. Derive from it and override the member to watch, change or
/// block.
class ForwardingDatabase : public ILayerDatabase
{
public:
    /// database: not owned; outlives this object.
    explicit ForwardingDatabase(ILayerDatabase& database) : m_database(database) { }

protected:
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override
    {
        return m_database.OpenRecordset(source);
    }
    void ILayerDatabase_BeginTrans() override { m_database.BeginTrans(); }
    void ILayerDatabase_CommitTrans() override { m_database.CommitTrans(); }
    void ILayerDatabase_Rollback() override { m_database.Rollback(); }

    /// The wrapped database, for use in overrides.
    ILayerDatabase& Wrapped() const { return m_database; }

private:
    ILayerDatabase& m_database;
};

} // namespace Orvane
