// SPDX-License-Identifier: MIT
#include "component/model/LayerCursors.h"

#include "component/model/CheckedColumns.h"
#include "component/model/ColumnError.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerQueries.h>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Orvane {

namespace {

qint16 QuickModeOrNormal(const IRecordset& row)
{
    try {
        return QuickModeColumn(row);
    } catch (const ColumnError&) {
        return QuickMode::Normal;
    }
}

std::optional<qint32> ReadableID(const IRecordset& row)
{
    try {
        return IntegerColumn(row, "LayerID");
    } catch (const ColumnError&) {
        return std::nullopt;
    }
}

} // namespace

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

std::vector<qint32> WithoutSystemLayers(IStyleEditorClient& client, const std::vector<qint32>& layerIDs)
{
    const auto layers = OpenLayersByID(client);
    std::vector<qint32> others;
    others.reserve(layerIDs.size());
    std::copy_if(layerIDs.begin(), layerIDs.end(), std::back_inserter(others), [&](qint32 layerID) {
        return !SeekID(*layers, layerID) || !FlagIsSet(*layers, "SystemLayer");
    });
    return others;
}

bool AnyLayerExists(IStyleEditorClient& client, const std::vector<qint32>& layerIDs)
{
    const auto layers = OpenLayersByID(client);
    return std::any_of(
        layerIDs.begin(), layerIDs.end(), [&](qint32 layerID) { return SeekID(*layers, layerID); });
}

std::vector<LayerMode> ReadQuickModes(IStyleEditorClient& client, const std::vector<qint32>& layerIDs)
{
    const auto layers = OpenLayersByID(client);
    std::vector<LayerMode> modes;
    modes.reserve(layerIDs.size());
    for (const qint32 layerID : layerIDs) {
        if (SeekID(*layers, layerID))
            modes.push_back({layerID, QuickModeOrNormal(*layers)});
    }
    return modes;
}

std::vector<LayerMode> ReadAllQuickModes(IStyleEditorClient& client)
{
    std::vector<LayerMode> modes;
    const auto layers = client.GetDatabase().OpenRecordset(LayerQueries::LayerList());
    for (; !layers->AtEOF(); layers->MoveNext()) {
        if (const std::optional<qint32> layerID = ReadableID(*layers))
            modes.push_back({*layerID, QuickModeOrNormal(*layers)});
    }
    return modes;
}

std::vector<LayerMode> ReadQuickModesWith(IStyleEditorClient& client, const std::vector<qint32>& layerIDs)
{
    const bool areMany = qsizetype(layerIDs.size()) > MostLayersOneByOne;
    return areMany ? ReadAllQuickModes(client) : ReadQuickModes(client, layerIDs);
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
