// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeFinder.h"

#include "component/dialog/nodes/FindWords.h"
#include "component/dialog/nodes/FlatNodes.h"
#include "component/dialog/nodes/FoldedText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Orvane {

namespace {

constexpr std::size_t UsualLength = 32; // characters of a name and a code

void AppendCode(std::u16string& folded, double code)
{
    if (std::isnan(code))
        return;
    folded.push_back(u'\n'); // no word goes over it
    std::array<char, 32> digits{};
    char* const end = digits.data() + digits.size();
    const bool isWhole = std::abs(code) < 1e6 && code == std::trunc(code); // most codes are, and it is faster
    const auto written
        = isWhole ? std::to_chars(digits.data(), end, int(code)) : std::to_chars(digits.data(), end, code);
    folded.append(digits.data(), written.ptr);
}

bool HasAll(QStringView folded, const QStringList& words)
{
    return std::all_of(
        words.begin(), words.end(), [folded](const QString& word) { return folded.contains(word); });
}

bool Holds(const std::vector<int>& numbers, int number)
{
    return std::binary_search(numbers.begin(), numbers.end(), number);
}

} // namespace

FoundNodes
NodeFinder::Find(const FlatNodes& nodes, const FindWords& words, const std::vector<NodeReference>& kept)
{
    if (words.IsEmpty())
        return {NodeRows(nodes), int(nodes.Layers().size()), std::nullopt, false};
    Fold(nodes);
    Search search{nodes, words.Folded(), {}, {}, {}};
    Keep(search, kept);
    for (int group = 0; group < int(nodes.Groups().size()); ++group)
        AddGroup(search, group);
    if (nodes.Groups().empty())
        AddLayers(search, search.words, 0, int(nodes.Layers().size()), -1);
    return std::move(search.found);
}

void NodeFinder::Keep(Search& search, const std::vector<NodeReference>& kept)
{
    for (const NodeReference& node : kept) {
        std::vector<int>& numbers = node.isGroup ? search.keptGroups : search.keptLayers;
        numbers.push_back(node.isGroup ? search.nodes.GroupWithID(node.groupID) : search.nodes.LayerAt(node));
    }
    std::sort(search.keptGroups.begin(), search.keptGroups.end());
    std::sort(search.keptLayers.begin(), search.keptLayers.end());
}

void NodeFinder::Forget()
{
    m_folded = {};
    m_ends = {};
}

void NodeFinder::Fold(const FlatNodes& nodes)
{
    if (!m_ends.empty())
        return;
    m_ends.reserve(nodes.Layers().size() + nodes.Groups().size());
    m_folded.reserve(m_ends.capacity() * UsualLength);
    for (const LayerEntry& layer : nodes.Layers()) {
        AppendFolded(m_folded, layer.text);
        AppendCode(m_folded, layer.code);
        m_ends.push_back(m_folded.size());
    }
    for (const FlatNodes::Group& group : nodes.Groups()) {
        AppendFolded(m_folded, group.text);
        m_ends.push_back(m_folded.size());
    }
}

QStringView NodeFinder::Folded(std::size_t text) const
{
    const std::size_t start = text == 0 ? 0 : m_ends[text - 1];
    return {m_folded.data() + start, qsizetype(m_ends[text] - start)};
}

void NodeFinder::AddLayers(Search& search, const QStringList& words, int first, int count, int group) const
{
    bool isGroupShown = group < 0;
    for (int layer = first; layer < first + count; ++layer) {
        const bool isFound = HasAll(Folded(std::size_t(layer)), words);
        if (!isFound && !Holds(search.keptLayers, layer))
            continue;
        if (!isGroupShown)
            search.found.rows.AddGroup(group);
        isGroupShown = true;
        search.found.rows.AddLayer(layer);
        search.found.layerCount += isFound ? 1 : 0;
        search.found.holdsOther = search.found.holdsOther || !isFound;
        if (isFound && !search.found.first)
            search.found.first = search.nodes.LayerReference(layer);
    }
    if (!isGroupShown && Holds(search.keptGroups, group)) {
        search.found.rows.AddGroup(group);
        search.found.holdsOther = true;
    }
}

void NodeFinder::AddGroup(Search& search, int group) const
{
    const QStringView text = Folded(search.nodes.Layers().size() + std::size_t(group));
    QStringList missing = search.words;
    missing.erase(
        std::remove_if(
            missing.begin(), missing.end(), [text](const QString& word) { return text.contains(word); }),
        missing.end());
    if (missing.isEmpty() && !search.found.first)
        search.found.first = search.nodes.GroupReference(group);
    const FlatNodes::Group& node = search.nodes.Groups()[std::size_t(group)];
    AddLayers(search, missing, node.firstLayer, node.layerCount, group);
}

} // namespace Orvane
