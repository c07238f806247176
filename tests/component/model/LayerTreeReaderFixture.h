// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeReader.h"
#include "hosts/MemoryHost.h"
#include "store/any/StoreDifferences.h"

#include <OrvaneShellLib/IStyleFilter.h>

#include <gtest/gtest.h>

namespace Orvane::Testing {

inline const TreeTexts texts{QStringLiteral("not found"), QStringLiteral("no name")};

/// The two lists of a host in memory, as they are read.
class ReadingOfTrees : public testing::Test
{
protected:
    void SetUp() override { SkipDifferences(); }

    std::vector<GroupEntry> Tree(const std::optional<QString>& groupFilter = std::nullopt)
    {
        return LoadLayerTree(host, groupFilter, texts).groups;
    }

    /// The tree as lines "group: layer layer".
    QStringList TreeLines(const std::optional<QString>& groupFilter = std::nullopt)
    {
        QStringList lines;
        for (const GroupEntry& group : Tree(groupFilter)) {
            QStringList layers;
            for (const LayerEntry& layer : group.layers)
                layers.append(layer.text);
            lines.append(group.text + QStringLiteral(": ") + layers.join(' '));
        }
        return lines;
    }

    QStringList ListNames(const IStyleFilter* filter = nullptr)
    {
        QStringList names;
        for (const LayerEntry& layer : ReloadLayerList(host, filter).layers)
            names.append(layer.text);
        return names;
    }

    void AddLayers(const std::vector<std::pair<qint32, QString>>& layers)
    {
        for (const auto& [id, name] : layers)
            host.AddLayer({.id = id, .name = name});
    }

    MemoryHost host;
};

using GroupsTree = ReadingOfTrees;
using LayerList = ReadingOfTrees;
using OneLayer = ReadingOfTrees;

/// Shows the layers with one of the two flags and records the calls.
class PseudoFilter : public IStyleFilter
{
public:
    explicit PseudoFilter(bool shown) : m_shown(shown) { }
    mutable std::vector<std::pair<qint32, bool>> asked;

private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool pseudo) const override
    {
        asked.emplace_back(layerID, pseudo);
        return pseudo == m_shown;
    }

    bool m_shown;
};

} // namespace Orvane::Testing
