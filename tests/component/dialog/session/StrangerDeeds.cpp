// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"

namespace Orvane::Testing {

namespace {

using namespace Paper;

const std::vector<std::pair<Column, std::vector<double>>> strangeValues{
    {Visible, {0, 1}},
    {Selectable, {0, 1}},
    {Hitable, {0, 1}},
    {Color, {0, 0x123456, double(qint32(0xFF00FF00u)), 0x0000FF}},
    {FillForeColor, {0, 0xFFFFFF, transparent, double(qint32(0x7F000001))}},
    {FillBackColor, {0x808080, transparent}},
    {OutlineStyle, {0, 0, 1, 4, 15}},
    {FillStyle, {0, 15, 3, 31}},
    {LineThickness, {-1, 0, -3, 7}},
    {MinVisScale, {0, 1000, 5000.4, 255000}},
    {MaxVisScale, {256000, 1000, 7000, 3000000}},
    {Priority, {1, 100, 255}},
    {Style, {0, 7, 9, 5}},
    {OverrideMode, {0, 1, 2}},
    {Code, {-3, -2, -1, 5, 17, 900}}};

void ChangeColumn(SessionFixture& session)
{
    if (session.map.layers.empty())
        return;
    const auto& [column, values] = session.dice.OneOf(strangeValues);
    const double value = session.dice.OneOf(values);
    const qint32 layerID = session.dice.OneOf(session.map.layers).first;
    session.host.SetLayerColumn(layerID, columnNames[size_t(column)], value);
    session.map.layers.at(layerID).columns[size_t(column)] = value;
}

void RenameBehind(SessionFixture& session)
{
    const QString name = session.NewName();
    if (session.dice.Chance(50) && !session.map.layers.empty()) {
        const qint32 layerID = session.dice.OneOf(session.map.layers).first;
        session.host.SetLayerColumn(layerID, "Name", name);
        session.map.layers.at(layerID).name = name;
    } else if (!session.map.groups.empty()) {
        const qint32 groupID = session.dice.OneOf(session.map.groups).first;
        const QString groupName = session.dice.Chance(30) ? QString("") : name;
        session.host.SetGroupColumn(groupID, "Name", groupName);
        session.map.groups.at(groupID).name = groupName;
    }
}

void RemoveBehind(SessionFixture& session)
{
    if (session.map.layers.size() < 4)
        return;
    const qint32 layerID = session.dice.OneOf(session.map.layers).first;
    session.host.RemoveMembers(layerID);
    session.host.RemoveLayerRow(layerID);
    session.map.RemoveLayer(layerID);
}

void AddBehind(SessionFixture& session)
{
    if (session.map.layers.size() > 16 || session.map.groups.empty())
        return;
    LayerSpec layer;
    layer.id = session.NewID();
    layer.name = session.NewName();
    layer.code = qint32(100 + layer.id);
    layer.overrideMode = qint32(session.dice.Below(3));
    session.host.AddLayer(layer);
    auto& [groupID, group]
        = *std::next(session.map.groups.begin(), session.dice.Below(int(session.map.groups.size())));
    session.host.AddMember(groupID, layer.id, 1000);
    group.members.push_back(layer.id);
    session.map.layers[layer.id] = ReadMap(session.host.PlainDatabase()).layers.at(layer.id);
}

void AddGroupBehind(SessionFixture& session)
{
    if (session.map.groups.size() > 7 || session.map.layers.empty())
        return;
    const qint32 groupID = session.NewID();
    const qint32 layerID = session.dice.OneOf(session.map.layers).first;
    session.host.AddGroup(
        {.id = groupID, .name = session.NewName(), .ordering = groupID, .members = {layerID}});
    session.map.groups[groupID] = ReadMap(session.host.PlainDatabase()).groups.at(groupID);
}

void RemoveGroupBehind(SessionFixture& session)
{
    if (session.map.groups.size() < 3)
        return;
    const qint32 groupID = session.dice.OneOf(session.map.groups).first;
    session.host.RemoveGroup(groupID);
    session.map.groups.erase(groupID);
}

} // namespace

std::vector<Deed> StrangerDeeds()
{
    return {
        {"change a column", 8, ChangeColumn},
        {"rename behind the dialog", 2, RenameBehind},
        {"remove a layer behind the dialog", 1, RemoveBehind},
        {"add a layer behind the dialog", 2, AddBehind},
        {"add a group behind the dialog", 1, AddGroupBehind},
        {"remove a group behind the dialog", 1, RemoveGroupBehind}};
}

} // namespace Orvane::Testing
