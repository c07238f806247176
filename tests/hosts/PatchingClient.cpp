// SPDX-License-Identifier: MIT
#include "hosts/PatchingClient.h"

#include <OrvaneShellLib/ForwardingRecordset.h>

namespace Orvane::Testing {

namespace {

class PatchingRecordset : public ForwardingRecordset
{
public:
    PatchingRecordset(std::unique_ptr<IRecordset> cursor, const ColumnPatches& patches)
        : ForwardingRecordset(std::move(cursor)), m_patches(patches)
    {
    }

protected:
    Value IRecordset_Field(std::string_view columnName) const override
    {
        const auto patch = m_patches.find(columnName);
        return patch != m_patches.end() ? patch->second : ForwardingRecordset::IRecordset_Field(columnName);
    }

private:
    const ColumnPatches& m_patches;
};

} // namespace

PatchingClient::PatchingClient(IStyleEditorClient& client, ColumnPatches patches)
    : ForwardingClient(client), m_patches(std::move(patches)), m_database(client.GetDatabase(), m_patches)
{
}

std::unique_ptr<IRecordset> PatchingClient::IStyleEditorClient_LayersTable()
{
    return std::make_unique<PatchingRecordset>(Wrapped().LayersTable(), m_patches);
}

std::unique_ptr<IRecordset>
PatchingClient::PatchingDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    return std::make_unique<PatchingRecordset>(Wrapped().OpenRecordset(source), m_patches);
}

} // namespace Orvane::Testing
