// SPDX-License-Identifier: MIT
#include "hostkit/undo/LayerChanges.h"

#include "store/Changeset.h"
#include "store/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane {

namespace {

using Kind = RowChange::Kind;

int PositionOf(SqliteLayerDatabase& database, const char* table, const char* column)
{
    const auto row = database.OpenQuery(
        QStringLiteral("SELECT cid FROM pragma_table_info(?1) WHERE name = ?2"),
        {QString::fromLatin1(table), QString::fromLatin1(column)});
    return row->AtEOF() ? -1 : ToInt32(row->Field("cid"));
}

bool Contains(const std::vector<int>& columns, int column)
{
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

/// Sorts rows into the sets.
class Sorter
{
public:
    explicit Sorter(SqliteLayerDatabase& database)
        : m_name(PositionOf(database, "Layers", "Name")), m_code(PositionOf(database, "Layers", "Code")),
          m_groupName(PositionOf(database, "LayerGroups", "Name"))
    {
    }

    void Take(const RowChange& row)
    {
        if (row.table == "Layers")
            TakeLayer(row, qint32(row.key));
        else if (row.table == "LayerGroups" && Contains(row.columns, m_groupName))
            m_changes.renamedGroups.insert(qint32(row.key));
        else if (row.table == "LayerSchemes")
            m_changes.schemes = true;
        else if (row.table == "LayerSchemeValues")
            m_layersInSchemes.insert(qint32(row.key));
    }

    // Values come and go with their layer; that tells nothing about the schemes.
    LayerChanges Finish()
    {
        m_layersInSchemes -= m_changes.created;
        m_layersInSchemes -= m_changes.deleted;
        m_changes.schemes |= !m_layersInSchemes.isEmpty();
        return std::move(m_changes);
    }

private:
    void TakeLayer(const RowChange& row, qint32 layerID)
    {
        if (row.kind == Kind::Inserted)
            m_changes.created.insert(layerID);
        else if (row.kind == Kind::Deleted)
            m_changes.deleted.insert(layerID);
        else
            TakeColumns(row.columns, layerID);
    }

    void TakeColumns(const std::vector<int>& columns, qint32 layerID)
    {
        const bool isRenamed = Contains(columns, m_name);
        if (isRenamed)
            m_changes.renamed.insert(layerID);
        if (columns.size() == size_t(isRenamed))
            return;
        m_changes.changed.insert(layerID);
        m_changes.onlyCodes &= columns.size() == 1 + size_t(isRenamed) && Contains(columns, m_code);
    }

    int m_name;
    int m_code;
    int m_groupName;
    LayerChanges m_changes;
    QSet<qint32> m_layersInSchemes;
};

} // namespace

LayerChanges LayerChanges::Of(const Changeset& changes, SqliteLayerDatabase& database)
{
    Sorter sorter(database);
    changes.ForEachRow([&](const RowChange& row) { sorter.Take(row); });
    return sorter.Finish();
}

} // namespace Orvane
