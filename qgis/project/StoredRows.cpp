// SPDX-License-Identifier: MIT
#include "qgis/project/StoredRows.h"

#include "hostkit/common/LayerRow.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

#include <algorithm>

namespace Orvane {

std::optional<LayerValues> StoredRows::Read(ILayerStore& store, qint32 layerID)
{
    const auto row = store.OpenQuery(QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), {layerID});
    if (row->AtEOF())
        return std::nullopt;
    LayerValues values;
    for (size_t column = 0; column < values.size(); ++column)
        values.at(column) = row->Field(LayerColumns.at(column).name);
    return values;
}

void StoredRows::Insert(ILayerStore& store, const LayerValues& row)
{
    LayerRow inserted;
    for (size_t column = 1; column < row.size(); ++column)
        inserted.Set(LayerColumns.at(column).name, row.at(column));
    inserted.StoreAs(ToInt32(row.front()), store);
}

bool StoredRows::Update(ILayerStore& store, const LayerValues& before, const LayerValues& after)
{
    QStringList assignments;
    std::vector<Value> values{before.front()};
    values.reserve(after.size());
    for (size_t column = 1; column < after.size(); ++column) {
        const char* name = LayerColumns.at(column).name;
        if (!Differs(before, after, name))
            continue;
        values.push_back(after.at(column));
        assignments << QStringLiteral("%1 = ?%2").arg(QLatin1String(name)).arg(values.size());
    }
    if (assignments.isEmpty())
        return false;
    store.Execute(
        QStringLiteral("UPDATE Layers SET %1 WHERE LayerID = ?1").arg(assignments.join(QLatin1String(", "))),
        values);
    return true;
}

bool StoredRows::AreDifferent(const LayerValues& one, const LayerValues& other)
{
    return std::any_of(LayerColumns.begin() + 1, LayerColumns.end(), [&](const LayerColumn& column) {
        return Differs(one, other, column.name);
    });
}

void StoredRows::Delete(ILayerStore& store, qint32 layerID)
{
    store.Execute(QStringLiteral("DELETE FROM LayerGroupMembers WHERE LayerID = ?1"), {layerID});
    store.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = ?1"), {layerID});
}

} // namespace Orvane
