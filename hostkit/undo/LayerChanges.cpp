// SPDX-License-Identifier: MIT
#include "hostkit/undo/LayerChanges.h"

#include "store/Changeset.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace Orvane {

namespace {

bool Contains(const std::vector<std::string_view>& columns, std::string_view column)
{
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

bool AreAll(const std::vector<std::string_view>& columns, const std::vector<std::string_view>& expected)
{
    return std::all_of(
        columns.begin(), columns.end(), [&](std::string_view column) { return Contains(expected, column); });
}

/// Sorts rows into the sets.
class Sorter
{
public:
    void Take(const RowChange& row)
    {
        if (row.table == "Layers")
            TakeLayer(row, qint32(row.key));
        else if (row.table == "LayerGroups")
            TakeGroup(row, qint32(row.key));
        else if (row.table == "LayerGroupMembers")
            m_changes.groups = true;
        else if (row.table == "LayerSchemes")
            TakeScheme(row);
        else if (row.table == "LayerSchemeValues")
            m_layersInSchemes.insert(qint32(row.key));
    }

    // Values that were added or removed together with their layer do not count as changes of the schemes.
    LayerChanges Finish()
    {
        m_layersInSchemes -= m_changes.created;
        m_layersInSchemes -= m_changes.deleted;
        m_changes.schemes |= !m_layersInSchemes.isEmpty();
        m_changes.schemeValues |= !m_layersInSchemes.isEmpty();
        return std::move(m_changes);
    }

private:
    void TakeLayer(const RowChange& row, qint32 layerID)
    {
        if (row.kind == ChangeKind::Inserted)
            m_changes.created.insert(layerID);
        else if (row.kind == ChangeKind::Deleted)
            m_changes.deleted.insert(layerID);
        else
            TakeColumns(row.columns, layerID);
    }

    void TakeGroup(const RowChange& row, qint32 groupID)
    {
        if (Contains(row.columns, "Name"))
            m_changes.renamedGroups.insert(groupID);
        m_changes.groups |= row.kind != ChangeKind::Updated || Contains(row.columns, "GroupOrdering")
            || Contains(row.columns, "Pseudo");
    }

    void TakeScheme(const RowChange& row)
    {
        m_changes.schemes = true;
        m_changes.schemeValues
            |= row.kind != ChangeKind::Updated || !AreAll(row.columns, {"Name", "Place", "AtOpening"});
    }

    void TakeColumns(const std::vector<std::string_view>& columns, qint32 layerID)
    {
        const bool isRenamed = Contains(columns, "Name");
        if (isRenamed)
            m_changes.renamed.insert(layerID);
        if (columns.size() == size_t(isRenamed))
            return;
        m_changes.changed.insert(layerID);
        m_changes.onlyCodes &= columns.size() == 1 + size_t(isRenamed) && Contains(columns, "Code");
    }

    LayerChanges m_changes;
    QSet<qint32> m_layersInSchemes;
};

} // namespace

LayerChanges LayerChanges::Of(const Changeset& changes)
{
    Sorter sorter;
    changes.ForEachRow([&](const RowChange& row) { sorter.Take(row); });
    return sorter.Finish();
}

} // namespace Orvane
