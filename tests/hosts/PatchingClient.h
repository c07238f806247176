// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ForwardingDatabase.h>

#include <map>
#include <string>

namespace Orvane::Testing {

/// Values that cursors return instead of the stored ones, by column name as written in the code.
using ColumnPatches = std::map<std::string, Value, std::less<>>;

/// Passes everything on to another client, but its cursors return other values for some columns, like a
/// damaged or foreign database.
///
///     PatchingClient client(host, {{"Color", QString("red")}});
class PatchingClient : public ForwardingClient
{
public:
    /// client: not owned; outlives this object.
    PatchingClient(IStyleEditorClient& client, ColumnPatches patches);

protected:
    ILayerDatabase& IStyleEditorClient_Database() override { return m_database; }
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override;

private:
    class PatchingDatabase : public ForwardingDatabase
    {
    public:
        PatchingDatabase(ILayerDatabase& database, const ColumnPatches& patches)
            : ForwardingDatabase(database), m_patches(patches)
        {
        }

    protected:
        std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;

    private:
        const ColumnPatches& m_patches;
    };

    ColumnPatches m_patches;
    PatchingDatabase m_database;
};

} // namespace Orvane::Testing
