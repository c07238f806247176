// SPDX-License-Identifier: MIT
#include "component/model/LayerTreeReader.h"

#include "component/model/CheckedColumns.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerQueries.h"
#include "component/model/ListedName.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/IStyleFilter.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QHash>

namespace Orvane {

namespace {

LayerEntry ReadEntry(IStyleEditorClient& client, const IRecordset& row, qint32 layerID)
{
    return {layerID, QuickModeColumn(row), DecorateLayerName(client.LayerDisplayName(layerID))};
}

// The tree's query also returns hidden layers. A Null code hides a layer, as it does in the other queries.
bool IsListed(const IRecordset& row)
{
    const Value code = NumberColumn(row, "Code");
    return !code.IsNull() && ToDouble(code) > -2;
}

/// Collects the rows of the tree's query into groups.
class TreeGathering
{
public:
    TreeGathering(IStyleEditorClient& client, const TreeTexts& texts)
        : m_client(client), m_texts(texts), m_groups(OpenGroupsByID(client.Database()))
    {
    }

    void AddRow(const IRecordset& row)
    {
        if (!IsListed(row))
            return;
        GroupEntry& group = GroupOf(IntegerColumn(row, "GroupID"));
        group.layers.push_back(ReadEntry(m_client, row, IntegerColumn(row, "LayerID")));
    }

    std::vector<GroupEntry> Finished() { return std::move(m_entries); }

private:
    // Groups with the same ordering come interleaved, so a group may occur again after another one.
    GroupEntry& GroupOf(qint32 groupID)
    {
        if (!m_entries.empty() && m_entries[m_current].groupID == groupID)
            return m_entries[m_current];
        const auto known = m_indexes.constFind(groupID);
        if (known != m_indexes.constEnd())
            return m_entries[m_current = *known];
        m_entries.push_back(StartGroup(groupID));
        m_current = m_entries.size() - 1;
        m_indexes.insert(groupID, m_current);
        return m_entries.back();
    }

    GroupEntry StartGroup(qint32 groupID)
    {
        if (!SeekID(*m_groups, groupID))
            return {groupID, m_texts.groupNotFound, false, {}};
        const Value name = m_groups->Field("Name");
        const QString text = ToTextOrNone(name);
        return {groupID, text.isEmpty() ? m_texts.noName : text, FlagIsSet(*m_groups, "Expanded"), {}};
    }

    IStyleEditorClient& m_client;
    const TreeTexts& m_texts;
    std::unique_ptr<IRecordset> m_groups;
    std::vector<GroupEntry> m_entries;
    QHash<qint32, std::size_t> m_indexes;
    std::size_t m_current = 0;
};

} // namespace

std::vector<GroupEntry>
LoadLayerTree(IStyleEditorClient& client, const std::optional<QString>& groupFilter, const TreeTexts& texts)
{
    const auto rows = client.Database().OpenRecordset(LayerQueries::Tree(groupFilter));
    TreeGathering gathering(client, texts);
    for (; !rows->AtEOF(); rows->MoveNext())
        gathering.AddRow(*rows);
    return gathering.Finished();
}

std::vector<LayerEntry> ReloadLayerList(IStyleEditorClient& client, const IStyleFilter* filter)
{
    std::vector<LayerEntry> layers;
    const auto rows = client.Database().OpenRecordset(LayerQueries::LayerList());
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const qint32 layerID = IntegerColumn(*rows, "LayerID");
        if (!filter || filter->IsLayerShown(layerID, FlagIsSet(*rows, "Pseudo")))
            layers.push_back(ReadEntry(client, *rows, layerID));
    }
    return layers;
}

std::optional<LayerEntry> ReadOneLayer(IStyleEditorClient& client, qint32 layerID)
{
    const auto rows = client.Database().OpenRecordset(LayerQueries::OneLayer(layerID));
    if (rows->AtEOF())
        return std::nullopt;
    return ReadEntry(client, *rows, layerID);
}

} // namespace Orvane
