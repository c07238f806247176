// SPDX-License-Identifier: MIT
#include "component/model/LayerCursors.h"

#include "component/model/CheckedColumns.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerQueries.h>

namespace Orvane {

std::unique_ptr<IRecordset> OpenLayersByID(IStyleEditorClient& client)
{
    auto layers = client.LayersTable();
    layers->Index("LayerIDIDX");
    return layers;
}

std::unique_ptr<IRecordset> OpenGroupsByID(ILayerDatabase& database)
{
    auto groups = database.OpenRecordset(QStringLiteral("LayerGroups"));
    groups->Index("IDIDX");
    return groups;
}

bool SeekID(IRecordset& table, qint32 id)
{
    table.Seek("=", id);
    return !table.NoMatch();
}

std::vector<qint32> ReadMemberLayerIDs(IStyleEditorClient& client, qint32 groupID)
{
    std::vector<qint32> layerIDs;
    const auto members = client.GetDatabase().OpenRecordset(LayerQueries::MemberLayerIDs(groupID));
    for (; !members->AtEOF(); members->MoveNext())
        layerIDs.push_back(IntegerColumn(*members, "LayerID"));
    members->Close();
    return layerIDs;
}

bool IsInAGroup(IStyleEditorClient& client, qint32 layerID)
{
    return !client.GetDatabase().OpenRecordset(LayerQueries::GroupsOfLayer(layerID))->AtEOF();
}

bool IsSystemLayer(IStyleEditorClient& client, qint32 layerID)
{
    const auto layers = OpenLayersByID(client);
    return SeekID(*layers, layerID) && FlagIsSet(*layers, "SystemLayer");
}

void StoreGroupExpanded(IStyleEditorClient& client, qint32 groupID, bool expanded)
{
    const auto groups = OpenGroupsByID(client.GetDatabase());
    if (!SeekID(*groups, groupID))
        return;
    groups->Edit();
    groups->SetField("Expanded", expanded);
    groups->Update();
}

} // namespace Orvane
