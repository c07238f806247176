// SPDX-License-Identifier: MIT
// Which layers the model shows, and which nodes it lists.
#include "component/dialog/session/PaperDialog.h"

#include <algorithm>

namespace Orvane::Testing::Paper {

namespace {

constexpr int normal = 1;
constexpr int hidden = 4;

// The mode of a layer whose own mode is to be brought back later.
int ChangedMode(int ownMode)
{
    return ownMode == hidden ? normal : hidden;
}

} // namespace

std::map<qint32, int> Dialog::ListedModes() const
{
    std::map<qint32, int> modes;
    for (const auto& [layerID, layer] : m_map.layers) {
        if (!IsHidden(layerID))
            modes[layerID] = EntryOf(layerID).mode;
    }
    return modes;
}

bool Dialog::IsShownOnlyMode(qint32 layerID, int mode) const
{
    const auto own = m_ownModes.find(layerID);
    return own != m_ownModes.end() && mode == ChangedMode(own->second);
}

void Dialog::SetHidden(const std::vector<qint32>& layerIDs, bool hides)
{
    std::map<qint32, int> modes;
    for (const qint32 layerID : layerIDs) {
        if (m_map.layers.count(layerID) && (EntryOf(layerID).mode == hidden) != hides)
            modes[layerID] = hides ? hidden : normal;
    }
    if (modes.empty())
        return;
    const std::map<qint32, int> before = ListedModes();
    std::erase_if(m_ownModes, [&](const auto& own) {
        const auto listed = before.find(own.first);
        return listed == before.end() || !IsShownOnlyMode(own.first, listed->second)
            || std::count(layerIDs.begin(), layerIDs.end(), own.first) > 0;
    });
    StoreModes(modes);
}

void Dialog::ShowOnlyChosen()
{
    const std::vector<qint32> wanted = ChosenLayerIDs();
    const std::map<qint32, int> all = ListedModes();
    if (std::none_of(wanted.begin(), wanted.end(), [&](qint32 id) { return all.count(id) > 0; }))
        return;
    std::map<qint32, int> ownModes;
    std::map<qint32, int> modes;
    for (const auto& [layerID, now] : all) {
        const int own = IsShownOnlyMode(layerID, now) ? m_ownModes.at(layerID) : now;
        const bool isWanted = std::count(wanted.begin(), wanted.end(), layerID) > 0;
        const bool changes = isWanted == (own == hidden);
        if (changes)
            ownModes[layerID] = own;
        if (const int mode = changes ? ChangedMode(own) : own; mode != now)
            modes[layerID] = mode;
    }
    if (modes.empty())
        return;
    m_ownModes = ownModes;
    StoreModes(modes);
}

void Dialog::ShowAllAgain()
{
    std::map<qint32, int> modes;
    for (const auto& [layerID, now] : ListedModes()) {
        if (IsShownOnlyMode(layerID, now))
            modes[layerID] = m_ownModes.at(layerID);
    }
    if (modes.empty())
        return;
    m_ownModes.clear();
    StoreModes(modes);
}

void Dialog::StoreModes(const std::map<qint32, int>& modes)
{
    for (const auto& [layerID, mode] : modes) {
        m_map.layers.at(layerID).columns[OverrideMode] = mode / 2;
        for (List& list : lists)
            list.SetMode(layerID, mode);
    }
    ++redraws;
    FollowModes(modes);
}

// A mode that is not applied yet would undo what was just done.
void Dialog::FollowModes(const std::map<qint32, int>& modes)
{
    const std::vector<qint32> chosen = ChosenLayerIDs();
    const bool isOfOthers
        = std::none_of(chosen.begin(), chosen.end(), [&](qint32 id) { return modes.count(id) > 0; });
    if (isModified && isOfOthers)
        return;
    panel.mode = panel.loadedMode;
    isModified = isModified && (!panel.marked.empty() || panel.isCodeMarked);
    ChooseAgain();
}

QString Dialog::BarText() const
{
    const std::map<qint32, int> all = ListedModes();
    const bool isChanged = std::any_of(
        all.begin(), all.end(), [this](const auto& now) { return IsShownOnlyMode(now.first, now.second); });
    if (!isChanged)
        return {};
    const auto shown
        = std::count_if(all.begin(), all.end(), [](const auto& now) { return now.second != hidden; });
    if (shown == 0)
        return QStringLiteral("No layer is shown.");
    return QStringLiteral("Only %1 of %2 layers %3 shown.")
        .arg(shown)
        .arg(all.size())
        .arg(shown == 1 ? QStringLiteral("is") : QStringLiteral("are"));
}

// A node with edits stays listed and shown until another one is chosen.
void Dialog::Find(const QStringList& words)
{
    const std::optional<Node> node = CurrentNode();
    const List found{false, lists[shownList].Found(words), {}};
    m_hasLeftNode = node && !isModified && !found.Holds(*node);
    if (m_hasLeftNode)
        panel = {};
}

void Dialog::EndFind()
{
    if (std::exchange(m_hasLeftNode, false))
        Load();
}

} // namespace Orvane::Testing::Paper
