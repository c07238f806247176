// SPDX-License-Identifier: MIT
#include "hosttests/ComponentCalls.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <array>

namespace Orvane::HostTests::ComponentCalls {

namespace {

constexpr std::array ReadOrder{
    "Code",          "Visible",     "Selectable",    "locked",        "Hitable",      "SnapRequired",
    "Enquirable",    "Color",       "FillForeColor", "FillBackColor", "OutlineStyle", "FillStyle",
    "LineThickness", "MinVisScale", "MaxVisScale",   "Priority",      "Style",        "OverrideMode"};

constexpr std::array BeforeScales{"OverrideMode", "Visible",    "Selectable",    "locked",        "Hitable",
                                  "SnapRequired", "Enquirable", "FillForeColor", "FillBackColor", "Color",
                                  "OutlineStyle", "FillStyle",  "LineThickness"};

ColumnValues ReadRow(const IRecordset& row, const IStyleEditorClient& client)
{
    ColumnValues values;
    for (const char* column : ReadOrder)
        values[column] = row.Field(column);
    values["Name"] = row.Field("Name");
    for (const char* column : {"MinVisScale", "MaxVisScale"}) {
        if (!values[column].IsNull())
            values[column] = client.StoredScaleToDialog(ToDouble(values[column]));
    }
    return values;
}

void Write(IRecordset& row, const char* column, const ColumnValues& edits)
{
    if (const auto edit = edits.find(column); edit != edits.end())
        row.SetField(column, edit->second);
}

void WriteScales(IRecordset& row, const IStyleEditorClient& client, const ColumnValues& edits)
{
    if (const auto minimum = edits.find("MinVisScale"); minimum != edits.end())
        row.SetField("MinVisScale", client.DialogScaleToStored(ToInt32(minimum->second)));
    if (const auto maximum = edits.find("MaxVisScale"); maximum != edits.end())
        row.SetField("MaxVisScale", ToInt32(client.DialogScaleToStored(ToInt32(maximum->second))));
}

void WriteLayer(IStyleEditorClient& client, IRecordset& layers, qint32 layerID, const ColumnValues& edits)
{
    if (!SeekID(layers, layerID))
        return;
    client.BeginLayerEdit(layers);
    for (const char* column : BeforeScales)
        Write(layers, column, edits);
    WriteScales(layers, client, edits);
    Write(layers, "Priority", edits);
    Write(layers, "Style", edits);
    client.LayerChanged(ToInt32(layers.Field("LayerID")));
    layers.Update();
}

void WriteMembers(IStyleEditorClient& client, qint32 groupID, const ColumnValues& edits)
{
    const auto members = IDsIn(client.GetDatabase(), LayerQueries::MemberLayerIDs(groupID), "LayerID");
    const auto layers = OpenLayersByID(client);
    for (const qint32 layerID : members)
        WriteLayer(client, *layers, layerID, edits);
}

} // namespace

std::unique_ptr<IRecordset> OpenLayersByID(IStyleEditorClient& client)
{
    auto layers = client.LayersTable();
    if (!layers)
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("LayersTable returned nullptr"));
    layers->Index("LayerIDIDX");
    return layers;
}

std::unique_ptr<IRecordset> OpenGroupsByID(ILayerDatabase& database)
{
    auto groups = database.OpenRecordset(QStringLiteral("LayerGroups"));
    if (!groups)
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("OpenRecordset returned nullptr"));
    groups->Index("IDIDX");
    return groups;
}

bool SeekID(IRecordset& table, qint32 id)
{
    table.Seek("=", id);
    return !table.NoMatch();
}

void ForEachRow(
    ILayerDatabase& database, const QString& query, const std::function<void(const IRecordset& row)>& act)
{
    const auto rows = database.OpenRecordset(query);
    if (!rows)
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("OpenRecordset returned nullptr"));
    for (int count = 0; !rows->AtEOF() && count < rowLimit; ++count, rows->MoveNext())
        act(*rows);
    rows->Close();
}

std::vector<qint32> IDsIn(ILayerDatabase& database, const QString& query, std::string_view column)
{
    std::vector<qint32> ids;
    ForEachRow(database, query, [&](const IRecordset& row) { ids.push_back(ToInt32(row.Field(column))); });
    return ids;
}

ColumnValues LoadLayer(IStyleEditorClient& client, qint32 layerID)
{
    const auto layers = OpenLayersByID(client);
    return SeekID(*layers, layerID) ? ReadRow(*layers, client) : ColumnValues();
}

std::vector<ColumnValues> LoadGroup(IStyleEditorClient& client, qint32 groupID)
{
    Transaction transaction(client.GetDatabase());
    const std::vector<qint32> members
        = IDsIn(client.GetDatabase(), LayerQueries::MemberLayerIDs(groupID), "LayerID");
    std::vector<ColumnValues> found;
    found.reserve(members.size());
    {
        const auto layers = OpenLayersByID(client);
        for (const qint32 layerID : members) {
            if (SeekID(*layers, layerID))
                found.push_back(ReadRow(*layers, client));
        }
    }
    transaction.Commit();
    return found;
}

void ApplyToLayer(IStyleEditorClient& client, qint32 layerID, const ColumnValues& edits)
{
    {
        const auto layers = OpenLayersByID(client);
        WriteLayer(client, *layers, layerID, edits);
    }
    client.RedrawMap();
}

void ApplyToGroup(IStyleEditorClient& client, qint32 groupID, const ColumnValues& edits)
{
    Transaction transaction(client.GetDatabase());
    WriteMembers(client, groupID, edits);
    transaction.Commit();
    client.RedrawMap();
}

void SetCode(IStyleEditorClient& client, qint32 layerID, double code)
{
    const auto layers = OpenLayersByID(client);
    if (!SeekID(*layers, layerID))
        return;
    client.BeginLayerEdit(*layers);
    layers->SetField("Code", code);
    layers->Update();
}

void SetExpanded(IStyleEditorClient& client, qint32 groupID, bool expanded)
{
    const auto groups = OpenGroupsByID(client.GetDatabase());
    if (!SeekID(*groups, groupID))
        return;
    groups->Edit();
    groups->SetField("Expanded", expanded);
    groups->Update();
}

} // namespace Orvane::HostTests::ComponentCalls
