// SPDX-License-Identifier: MIT
#include "hostkit/manager/TakeOver.h"

#include "hostkit/schemes/SchemeColumns.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>

#include <algorithm>
#include <iterator>

namespace Orvane {

namespace {

using Line = std::vector<SchemeDifference>::const_iterator;

Value StoredValue(const LayerColumn& column, const std::optional<double>& value)
{
    if (!value)
        return Value::Null();
    if (column.kind == ColumnKind::Flag)
        return *value != 0;
    return column.kind == ColumnKind::Real ? Value(*value) : Value(qint32(*value));
}

void WriteLayer(IRecordset& layers, IStyleEditorClient& client, Line line, Line end)
{
    layers.Seek("=", line->layerID);
    if (layers.NoMatch())
        return;
    client.BeginLayerEdit(layers);
    const qint32 layerID = line->layerID;
    for (; line != end; ++line) {
        const LayerColumn& column = SchemeColumns::All.at(line->column);
        layers.SetField(column.name, StoredValue(column, line->to));
    }
    client.LayerChanged(layerID);
    layers.Update();
}

void WriteLayers(ILayerStore& map, IStyleEditorClient& client, const std::vector<SchemeDifference>& values)
{
    const auto layers = client.LayersTable();
    layers->Index("LayerIDIDX");
    for (Line line = values.begin(); line != values.end();) {
        const Line next = std::find_if(line, values.end(), [&](const SchemeDifference& other) {
            return other.layerID != line->layerID;
        });
        WriteLayer(*layers, client, line, next);
        line = next;
        map.AskWatcher(double(line - values.begin()) / double(values.size()));
    }
}

} // namespace

void TakeOver(ILayerStore& map, IStyleEditorClient& client, const std::vector<SchemeDifference>& differences)
{
    std::vector<SchemeDifference> values;
    values.reserve(differences.size());
    std::copy_if(differences.begin(), differences.end(), std::back_inserter(values), [](const auto& line) {
        return line.kind == SchemeDifference::Kind::Value;
    });
    Transaction transaction(client.GetDatabase());
    WriteLayers(map, client, values); // closes its cursor
    transaction.Commit();
    client.RedrawMap();
}

} // namespace Orvane
