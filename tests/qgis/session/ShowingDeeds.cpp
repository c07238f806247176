// SPDX-License-Identifier: MIT
#include "qgis/session/SessionWorld.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

constexpr double Normal = 0;
constexpr double Hidden = 2;

// A mode that is not known counts as normal.
double ModeOf(const Paper::Layer& layer)
{
    const QVariant& mode = layer.row.at("OverrideMode");
    return mode.isValid() ? mode.toDouble() : Normal;
}

void SetMode(Paper::Layer& layer, double mode)
{
    if (layer.row.at("OverrideMode").isValid())
        layer.row["OverrideMode"] = mode;
}

// The mode of a layer whose own mode is to be brought back later.
double ChangedMode(double ownMode)
{
    return ownMode == Hidden ? Normal : Hidden;
}

bool IsChanged(const SessionWorld& world, qint32 id)
{
    const auto own = world.ownModes.find(id);
    return own != world.ownModes.end() && ModeOf(world.paper.at(id)) == ChangedMode(own->second);
}

bool Holds(const std::vector<qint32>& layerIDs, qint32 id)
{
    return std::count(layerIDs.begin(), layerIDs.end(), id) > 0;
}

bool Pick(SessionWorld& world, const QString& entry)
{
    const bool picked = !world.isEdited && world.user.Pick(world.tab, entry);
    SessionWorld::Settle();
    world.mayFail = true; // a layer may refuse its mode
    return picked;
}

void SelectSeveral(SessionWorld& world)
{
    const int rows = world.user.Rows(world.tab);
    if (world.isEdited || rows < 3)
        return;
    const int first = world.dice.Below(rows - 2);
    world.user.ClickNodes(world.tab, {first, first + 1 + world.dice.Below(rows - first - 1)});
}

void ShowOrHide(SessionWorld& world)
{
    const bool hides = world.dice.Chance(50);
    const std::vector<qint32> members = world.Members();
    if (!Pick(world, hides ? "Hide" : "Show"))
        return;
    const Paper::Layers before = world.paper;
    const bool changes = std::any_of(members.begin(), members.end(), [&](qint32 id) {
        return (ModeOf(before.at(id)) == Hidden) != hides;
    });
    if (changes)
        std::erase_if(world.ownModes, [&](const auto& own) {
            return !world.paper.count(own.first) || !IsChanged(world, own.first) || Holds(members, own.first);
        });
    for (const qint32 id : members) {
        if ((ModeOf(before.at(id)) == Hidden) != hides)
            SetMode(world.paper.at(id), hides ? Hidden : Normal);
    }
    world.NoteStep(before);
}

void ShowOnly(SessionWorld& world)
{
    const std::vector<qint32> wanted = world.Members();
    if (!Pick(world, "Show Only These") || wanted.empty())
        return;
    const Paper::Layers before = world.paper;
    Paper::OwnModes ownModes;
    std::map<qint32, double> modes;
    for (const auto& [id, layer] : before) {
        const double own = IsChanged(world, id) ? world.ownModes.at(id) : ModeOf(layer);
        const bool changes = Holds(wanted, id) == (own == Hidden);
        if (changes)
            ownModes[id] = own;
        if (const double mode = changes ? ChangedMode(own) : own; mode != ModeOf(layer))
            modes[id] = mode;
    }
    if (modes.empty())
        return;
    world.ownModes = ownModes;
    for (const auto& [id, mode] : modes)
        SetMode(world.paper.at(id), mode);
    world.NoteStep(before);
}

void ShowAllAgain(SessionWorld& world)
{
    if (!Pick(world, "Show All Again"))
        return;
    const Paper::Layers before = world.paper;
    bool hasChanged = false;
    for (auto& [id, layer] : world.paper) {
        if (!IsChanged(world, id))
            continue;
        SetMode(layer, world.ownModes.at(id));
        hasChanged = true;
    }
    if (hasChanged)
        world.ownModes.clear();
    world.NoteStep(before);
}

} // namespace

std::vector<Deed> ShowingDeeds()
{
    return {
        {"select several nodes", 8, SelectSeveral},
        {"show or hide layers", 5, ShowOrHide},
        {"show only some layers", 4, ShowOnly},
        {"show all layers again", 4, ShowAllAgain}};
}

} // namespace Orvane::Testing
