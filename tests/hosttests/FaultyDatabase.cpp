// SPDX-License-Identifier: MIT
#include "hosttests/FaultyDatabase.h"

namespace Orvane::Testing {

FaultyDatabaseHost::FaultyDatabase::FaultyDatabase(ILayerDatabase& database, DatabaseFaults faults)
    : ForwardingDatabase(database), m_faults(std::move(faults))
{
}

std::unique_ptr<IRecordset>
FaultyDatabaseHost::FaultyDatabase::Changed(std::unique_ptr<IRecordset> cursor) const
{
    return m_faults.cursor ? m_faults.cursor(std::move(cursor)) : std::move(cursor);
}

std::unique_ptr<IRecordset>
FaultyDatabaseHost::FaultyDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    return Changed(Wrapped().OpenRecordset(m_faults.query ? m_faults.query(source) : source));
}

void FaultyDatabaseHost::FaultyDatabase::ILayerDatabase_CommitTrans()
{
    m_faults.commit ? m_faults.commit(Wrapped()) : Wrapped().CommitTrans();
}

void FaultyDatabaseHost::FaultyDatabase::ILayerDatabase_Rollback()
{
    m_faults.rollback ? m_faults.rollback(Wrapped()) : Wrapped().Rollback();
}

FaultyDatabaseHost::FaultyClient::FaultyClient(IStyleEditorClient& client, DatabaseFaults faults)
    : ForwardingClient(client), m_database(client.GetDatabase(), std::move(faults))
{
}

std::unique_ptr<IRecordset> FaultyDatabaseHost::FaultyClient::IStyleEditorClient_LayersTable()
{
    return m_database.Changed(Wrapped().LayersTable());
}

FaultyDatabaseHost::FaultyDatabaseHost(const HostContents& contents, DatabaseFaults faults)
    : StoreHost(contents), m_client(StoreHost::Client(), std::move(faults))
{
}

HostTests::MakeHost With(const DatabaseFaults& faults)
{
    return [faults](const HostContents& contents) -> std::unique_ptr<HostTests::IHostUnderTest> {
        return std::make_unique<FaultyDatabaseHost>(contents, faults);
    };
}

} // namespace Orvane::Testing
