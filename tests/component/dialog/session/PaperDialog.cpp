// SPDX-License-Identifier: MIT
#include "component/dialog/session/PaperDialog.h"

#include <algorithm>

namespace Orvane::Testing::Paper {

namespace {

bool IsSingle(int mode)
{
    return mode == 1 || mode == 2 || mode == 4;
}

} // namespace

// ---- lists

bool Dialog::IsHidden(qint32 layerID) const
{
    const auto layer = m_map.layers.find(layerID);
    return layer == m_map.layers.end() || layer->second.columns[Code] <= -2;
}

Entry Dialog::EntryOf(qint32 layerID) const
{
    const Layer& layer = m_map.layers.at(layerID);
    const double overrideMode = layer.columns[OverrideMode];
    return {layerID, overrideMode == 1 ? 2 : overrideMode == 2 ? 4 : 1, layer.name};
}

std::vector<Branch> Dialog::ReadGroups() const
{
    std::vector<Branch> branches;
    for (const auto& [groupID, group] : m_map.groups) {
        Branch branch{groupID, group.name.isEmpty() ? QStringLiteral("<No Name>") : group.name, {}};
        for (qint32 layerID : group.members) {
            if (!IsHidden(layerID))
                branch.entries.push_back(EntryOf(layerID));
        }
        if (!branch.entries.empty())
            branches.push_back(std::move(branch));
    }
    return branches;
}

std::vector<Branch> Dialog::ReadLayers() const
{
    Branch all;
    for (const auto& [layerID, layer] : m_map.layers) {
        if (!IsHidden(layerID) && !(isFilteredOut && isFilteredOut(layerID)))
            all.entries.push_back(EntryOf(layerID));
    }
    return all.entries.empty() ? std::vector<Branch>() : std::vector{all};
}

std::vector<Branch> Dialog::Read(ListNumber number) const
{
    return number == Groups ? ReadGroups() : ReadLayers();
}

void Dialog::EnsureLoaded(ListNumber number, Answer answer)
{
    if (lists[number].isStale || lists[number].branches.empty())
        LoadList(number, answer);
}

// A current node that exists but is no longer listed may get its edits before it leaves the list.
void Dialog::LoadList(ListNumber number, Answer answer)
{
    List& list = lists[number];
    const std::optional<Node> before = list.current;
    List fresh{false, Read(number), before};
    const bool exists = before
        && (before->isGroup ? m_map.groups.count(before->groupID) : m_map.layers.count(before->layerID));
    if (before && number == shownList && exists && !fresh.Holds(*before)) {
        Ask(answer);
        fresh.branches = Read(number);
    }
    if (before && !fresh.Holds(*before))
        fresh.current = m_look(number);
    list = fresh;
    if (before && number == shownList && (list.current != before || !list.Holds(*before)))
        Load();
}

void Dialog::ForgetLists()
{
    for (List& list : lists)
        list.isStale = true;
}

std::optional<Node> Dialog::CurrentNode() const
{
    const List& list = lists[shownList];
    return list.current && list.Holds(*list.current) ? list.current : std::nullopt;
}

// ---- operations

void Dialog::Ask(Answer answer)
{
    if (!isModified || !panel.node || panel.node != CurrentNode())
        return;
    const QString kind = panel.node->isGroup ? QStringLiteral("group") : QStringLiteral("layer");
    const QString name = lists[shownList].TextOf(*panel.node);
    const QString one = QStringLiteral("the '%1' %2").arg(name, kind);
    const QString several = panel.layers == 1 ? QStringLiteral("the selected layer")
                                              : QStringLiteral("the %1 selected layers").arg(panel.layers);
    m_boxes.append(
        QStringLiteral("Do you wish to apply the changes to %1?").arg(more.empty() ? one : several));
    if (answer == Answer::Yes)
        Apply();
}

void Dialog::Apply()
{
    const std::optional<Node> node = CurrentNode();
    if (!isModified || !node || panel.node != node)
        return;
    int written = 0;
    const auto write = [&](qint32 layerID) {
        const auto found = m_map.layers.find(layerID);
        if (found == m_map.layers.end())
            return;
        ++written;
        const bool isModeKept = panel.mode == panel.loadedMode && EntryOf(layerID).mode != panel.loadedMode;
        Write(found->second, ValuesToWrite(found->second));
        if (IsSingle(panel.mode) && !isModeKept)
            found->second.columns[OverrideMode] = panel.mode / 2; // 1, 2, 4 are stored as 0, 1, 2
    };
    const std::vector<qint32> layerIDs = ChosenLayerIDs();
    const bool newMode = panel.mode != panel.loadedMode;
    std::for_each(layerIDs.begin(), layerIDs.end(), write);
    if (!node->isGroup && more.empty()) {
        const auto layer = m_map.layers.find(node->layerID);
        const bool isCodeKept = layer != m_map.layers.end() && !panel.isCodeMarked
            && panel.storedCode != layer->second.columns[Code];
        if (!isCodeKept)
            SetLayerCode(node->layerID);
    }
    ++redraws;
    if (written == 0) {
        TellThatNothingWasWritten(*node);
        return;
    }
    if (newMode && IsSingle(panel.mode)) {
        for (qint32 layerID : layerIDs) {
            lists[Groups].SetMode(layerID, panel.mode);
            lists[Layers].SetMode(layerID, panel.mode);
        }
    }
    const bool isUnexpected = (node->isGroup || !more.empty()) && newMode && !IsSingle(panel.mode);
    Load();
    if (isUnexpected)
        m_boxes.append(QStringLiteral("Unexpected program flow in frmLayerStyles"));
}

void Dialog::TellThatNothingWasWritten(const Node& node)
{
    const QString name = lists[shownList].TextOf(node);
    if (!more.empty())
        Tell(QStringLiteral("The selected layers (%1) no longer exist. The changes were not applied.")
                 .arg(panel.layers));
    else if (node.isGroup && m_map.groups.count(node.groupID))
        Tell(QStringLiteral("The group '%1' no longer has any layers. The changes were not applied.")
                 .arg(name));
    else
        Tell(QStringLiteral("The %1 '%2' no longer exists. The changes were not applied.")
                 .arg(node.isGroup ? QStringLiteral("group") : QStringLiteral("layer"), name));
}

void Dialog::SetLayerCode(qint32 layerID)
{
    if (const auto found = m_map.layers.find(layerID); found != m_map.layers.end())
        found->second.columns[Code] = panel.code.toDouble();
}

void Dialog::ShowTab(int wanted, Answer answer)
{
    const ListNumber wantedList = wanted == 1 ? Groups : Layers;
    if (wanted == 3 || wantedList != shownList) {
        Ask(answer);
        isModified = false;
    }
    tab = wanted;
    if (wanted != 3) {
        shownList = wantedList;
        EnsureLoaded(wantedList, answer);
        Load();
        return;
    }
    panel.mode = panel.loadedMode; // nothing is read
    panel.code = panel.storedCode ? QString::number(*panel.storedCode) : QString();
    panel.isCodeMarked = false;
}

void Dialog::ClickShownTab(Answer answer)
{
    if (tab != 3)
        EnsureLoaded(shownList, answer);
}

void Dialog::Choose(const Node& node, Answer answer)
{
    List& list = lists[shownList];
    if (list.current == node && more.empty()) {
        ChooseAgain();
        return;
    }
    Ask(answer);
    more.clear();
    list.current = node;
    Load();
}

void Dialog::ChooseMore(const Node& node, Answer answer)
{
    Ask(answer);
    List& list = lists[shownList];
    if (const auto current = CurrentNode())
        more.push_back(*current);
    list.current = node;
    Load();
}

void Dialog::ChooseAgain()
{
    if (isModified && panel.node && panel.node == CurrentNode())
        Read();
    else
        Load();
}

void Dialog::Rename(const Node& node, const QString& name)
{
    if (node.isGroup) {
        m_map.groups.at(node.groupID).name = name;
        for (Branch& branch : lists[Groups].branches) {
            if (branch.groupID == node.groupID)
                branch.text = name;
        }
        return;
    }
    m_map.layers.at(node.layerID).name = name;
    for (List& list : lists)
        list.SetText(node.layerID, name);
}

void Dialog::DeleteLayer()
{
    if (!panel.node || panel.node->isGroup)
        return;
    const qint32 layerID = panel.node->layerID;
    const auto layer = m_map.layers.find(layerID);
    if (layer != m_map.layers.end() && layer->second.isSystem) {
        m_boxes.append(QStringLiteral("You may not delete a 'system layer'"));
        return;
    }
    m_map.RemoveLayer(layerID);
    isModified = false;
    ForgetLists();
    ShowTab(tab, Answer::No);
}

void Dialog::Open(int storedTab)
{
    lists = {};
    panel = {};
    isModified = false;
    isFilteredOut = nullptr;
    shownList = Groups;
    ShowTab(storedTab, Answer::No);
}

void Dialog::AddNewLayer(qint32 layerID, Answer answer)
{
    List& list = lists[Layers];
    const std::optional<Node> before = list.current;
    EnsureLoaded(Layers, answer);
    const bool wentOn = before && (list.current != before || !list.Holds(*before)); // it may come back now
    if (IsHidden(layerID))
        return;
    const Node node{false, 0, layerID};
    if (list.branches.empty())
        list.branches.emplace_back();
    const Entry entry = EntryOf(layerID);
    if (!list.Holds(node))
        list.branches.front().entries.push_back(entry);
    for (List& each : lists) {
        each.SetText(layerID, entry.text);
        each.SetMode(layerID, entry.mode);
    }
    if (list.current == node && !wentOn) // else m_look saw the result of this call
        return;
    if (shownList == Layers)
        Ask(answer);
    list.current = node;
    if (shownList == Layers)
        Load();
}

void Dialog::RefreshGroups()
{
    isModified = false;
    LoadList(Groups, Answer::No);
    if (tab != 3)
        Load();
}

void Dialog::ReadLayersAgain(Answer answer)
{
    LoadList(Layers, answer);
}

} // namespace Orvane::Testing::Paper
