// SPDX-License-Identifier: MIT
#include "component/model/LayerTreeReader.h"

#include "component/model/CheckedColumns.h"
#include "component/model/LayerCursors.h"
#include "component/model/ListedName.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/IStyleFilter.h>
#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QtNumeric>

#include <unordered_map>
#include <utility>

namespace Orvane {

namespace {

/// Reads on where a value cannot be read, and keeps the first such error.
class RowFaults
{
public:
    /// What read returns, or otherwise if the value cannot be read.
    template <typename Read, typename Result> Result Or(Result otherwise, Read&& read)
    {
        try {
            return std::forward<Read>(read)();
        } catch (const ColumnError& error) {
            if (!m_first)
                m_first.emplace(error);
            m_inRow = true;
            return otherwise;
        }
    }

    /// True if there was a fault since the last call.
    bool EndRow() { return std::exchange(m_inRow, false); }

    const std::optional<ColumnError>& First() const { return m_first; }

private:
    std::optional<ColumnError> m_first;
    bool m_inRow = false;
};

std::optional<qint32> IDIn(const IRecordset& row, const char* column, RowFaults& faults)
{
    return faults.Or(std::optional<qint32>(), [&] { return std::optional(IntegerColumn(row, column)); });
}

LayerEntry
ReadEntry(IStyleEditorClient& client, const IRecordset& row, qint32 layerID, double code, RowFaults& faults)
{
    const qint16 mode = faults.Or(QuickMode::Normal, [&] { return QuickModeColumn(row); });
    return {layerID, mode, DecorateLayerName(client.LayerDisplayName(layerID)), faults.EndRow(), code};
}

// Nothing for a layer that is not listed: the tree's query also returns hidden layers, and a Null code hides
// a layer as it does in the other queries. A code that is a text passes the queries, and is a fault of the
// row.
std::optional<double> ListedCode(const IRecordset& row, RowFaults& faults)
{
    return faults.Or(std::optional(qQNaN()), [&] {
        const Value code = NumberColumn(row, "Code");
        const bool isListed = !code.IsNull() && ToDouble(code) > -2;
        return isListed ? std::optional(ToDouble(code)) : std::nullopt;
    });
}

bool IsShown(const IStyleFilter* filter, const IRecordset& row, qint32 layerID, RowFaults& faults)
{
    if (!filter)
        return true;
    return filter->IsLayerShown(layerID, faults.Or(false, [&] { return FlagIsSet(row, "Pseudo"); }));
}

/// Collects the rows of the tree's query into groups.
class TreeGathering
{
public:
    TreeGathering(IStyleEditorClient& client, const TreeTexts& texts)
        : m_client(client), m_texts(texts), m_groups(OpenGroupsByID(client.GetDatabase()))
    {
    }

    void AddRow(const IRecordset& row)
    {
        m_faults.EndRow();
        const std::optional<double> code = ListedCode(row, m_faults);
        if (!code)
            return;
        const std::optional<qint32> groupID = IDIn(row, "GroupID", m_faults);
        const std::optional<qint32> layerID = IDIn(row, "LayerID", m_faults);
        if (!groupID || !layerID)
            return;
        LayerEntry layer = ReadEntry(m_client, row, *layerID, *code, m_faults);
        GroupOf(*groupID).layers.push_back(std::move(layer));
    }

    TreeReading Finished() { return {std::move(m_entries), m_faults.First()}; }

private:
    // Groups with the same ordering come interleaved, so a group may occur again after another one.
    GroupEntry& GroupOf(qint32 groupID)
    {
        if (!m_entries.empty() && m_entries[m_current].groupID == groupID)
            return m_entries[m_current];
        const auto known = m_indexes.find(groupID);
        if (known != m_indexes.end())
            return m_entries[m_current = known->second];
        m_entries.push_back(StartGroup(groupID));
        m_current = m_entries.size() - 1;
        m_indexes.emplace(groupID, m_current);
        return m_entries.back();
    }

    GroupEntry StartGroup(qint32 groupID)
    {
        if (!SeekID(*m_groups, groupID))
            return {groupID, m_texts.groupNotFound, false, {}};
        const Value name = m_groups->Field("Name");
        const QString text = ToTextOrNone(name);
        const bool expanded = m_faults.Or(false, [this] { return FlagIsSet(*m_groups, "Expanded"); });
        return {groupID, text.isEmpty() ? m_texts.noName : text, expanded, {}, m_faults.EndRow()};
    }

    IStyleEditorClient& m_client;
    const TreeTexts& m_texts;
    std::unique_ptr<IRecordset> m_groups;
    RowFaults m_faults;
    std::vector<GroupEntry> m_entries;
    std::unordered_map<qint32, std::size_t> m_indexes; // QHash ends the program when there is no memory
    std::size_t m_current = 0;
};

std::optional<ListedLayer>
ReadListed(IStyleEditorClient& client, qint32 layerID, const IStyleFilter* filter, RowFaults& faults)
{
    const auto row = client.GetDatabase().OpenRecordset(LayerQueries::OneLayer(layerID));
    if (row->AtEOF())
        return std::nullopt;
    faults.EndRow();
    const bool isInList = IsShown(filter, *row, layerID, faults);
    const QString name = ToTextOrNone(row->Field("Name"));
    const double code = ListedCode(*row, faults).value_or(qQNaN());
    return ListedLayer{ReadEntry(client, *row, layerID, code, faults), name, isInList};
}

} // namespace

TreeReading
LoadLayerTree(IStyleEditorClient& client, const std::optional<QString>& groupFilter, const TreeTexts& texts)
{
    const auto rows = client.GetDatabase().OpenRecordset(LayerQueries::Tree(groupFilter));
    TreeGathering gathering(client, texts);
    for (; !rows->AtEOF(); rows->MoveNext())
        gathering.AddRow(*rows);
    return gathering.Finished();
}

ListReading ReloadLayerList(IStyleEditorClient& client, const IStyleFilter* filter)
{
    std::vector<LayerEntry> layers;
    RowFaults faults;
    const auto rows = client.GetDatabase().OpenRecordset(LayerQueries::LayerList());
    for (; !rows->AtEOF(); rows->MoveNext()) {
        faults.EndRow();
        const std::optional<qint32> layerID = IDIn(*rows, "LayerID", faults);
        const std::optional<double> code = layerID ? ListedCode(*rows, faults) : std::nullopt;
        if (code && IsShown(filter, *rows, *layerID, faults))
            layers.push_back(ReadEntry(client, *rows, *layerID, *code, faults));
    }
    return {std::move(layers), faults.First()};
}

LayersReading
RereadLayers(IStyleEditorClient& client, const QSet<qint32>& layerIDs, const IStyleFilter* filter)
{
    RowFaults faults;
    LayersReading reading;
    reading.layers.reserve(size_t(layerIDs.size()));
    for (const qint32 layerID : layerIDs)
        reading.layers.emplace_back(layerID, ReadListed(client, layerID, filter, faults));
    reading.fault = faults.First();
    return reading;
}

std::optional<LayerEntry> ReadOneLayer(IStyleEditorClient& client, qint32 layerID)
{
    const auto rows = client.GetDatabase().OpenRecordset(LayerQueries::OneLayer(layerID));
    if (rows->AtEOF())
        return std::nullopt;
    RowFaults faults;
    const double code = ListedCode(*rows, faults).value_or(qQNaN());
    return ReadEntry(client, *rows, layerID, code, faults);
}

} // namespace Orvane
