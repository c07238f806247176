// SPDX-License-Identifier: MIT
#pragma once

#include "hosttests/BrokenHosts.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ForwardingDatabase.h>
#include <OrvaneShellLib/ForwardingRecordset.h>

#include <functional>

namespace Orvane::Testing {

/// What a database does differently. Functions that are not set change nothing.
struct DatabaseFaults {
    std::function<QString(QString)> query = {}; ///< the query that is run instead
    /// The cursor that is returned instead.
    std::function<std::unique_ptr<IRecordset>(std::unique_ptr<IRecordset>)> cursor = {};
    std::function<void(ILayerDatabase&)> commit = {}; ///< run instead, as the next one
    std::function<void(ILayerDatabase&)> rollback = {};
};

/// The standard host, whose database has faults.
class FaultyDatabaseHost : public StoreHost
{
public:
    FaultyDatabaseHost(const HostContents& contents, DatabaseFaults faults);

    IStyleEditorClient& Client() override { return m_client; }

private:
    class FaultyDatabase : public ForwardingDatabase
    {
    public:
        FaultyDatabase(ILayerDatabase& database, DatabaseFaults faults);

        std::unique_ptr<IRecordset> Changed(std::unique_ptr<IRecordset> cursor) const;

    private:
        std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
        void ILayerDatabase_CommitTrans() override;
        void ILayerDatabase_Rollback() override;

        DatabaseFaults m_faults;
    };

    class FaultyClient : public ForwardingClient
    {
    public:
        FaultyClient(IStyleEditorClient& client, DatabaseFaults faults);

    private:
        ILayerDatabase& IStyleEditorClient_Database() override { return m_database; }
        std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override;

        FaultyDatabase m_database;
    };

    FaultyClient m_client;
};

/// Makes hosts with these faults.
HostTests::MakeHost With(const DatabaseFaults& faults);

/// Makes hosts whose cursors are of that class, which takes the cursor that it wraps.
template <typename Cursor> HostTests::MakeHost WithCursor()
{
    return With({.cursor = [](std::unique_ptr<IRecordset> cursor) -> std::unique_ptr<IRecordset> {
        return std::make_unique<Cursor>(std::move(cursor));
    }});
}

} // namespace Orvane::Testing
