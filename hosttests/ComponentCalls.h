// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QString>
#include <QtGlobal>

#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

/// What the component asks of its host, with the same calls in the same order.
namespace Orvane::HostTests::ComponentCalls {

/// Values of columns. In scale columns of edits: scale indexes.
using ColumnValues = std::map<std::string_view, Value>;

/// A cursor over Layers, ready to seek.
std::unique_ptr<IRecordset> OpenLayersByID(IStyleEditorClient& client);
/// A cursor over LayerGroups, ready to seek.
std::unique_ptr<IRecordset> OpenGroupsByID(ILayerDatabase& database);
/// True if the row is there.
bool SeekID(IRecordset& table, qint32 id);

/// Calls act for each row of a query, and stops at rowLimit rows.
void ForEachRow(
    ILayerDatabase& database, const QString& query, const std::function<void(const IRecordset& row)>& act);
inline constexpr int rowLimit = 10000;
/// One column of all rows, which holds 32-bit numbers.
std::vector<qint32> IDsIn(ILayerDatabase& database, const QString& query, std::string_view column);

/// The properties of a layer; empty if it is not there.
ColumnValues LoadLayer(IStyleEditorClient& client, qint32 layerID);
/// The properties of all layers of a group, read in one transaction.
std::vector<ColumnValues> LoadGroup(IStyleEditorClient& client, qint32 groupID);

/// Writes what is in edits to a layer, if it is there; tells the client and has the map redrawn.
void ApplyToLayer(IStyleEditorClient& client, qint32 layerID, const ColumnValues& edits);
/// The same for all layers of a group, in one transaction.
void ApplyToGroup(IStyleEditorClient& client, qint32 groupID, const ColumnValues& edits);

/// Stores a code, which the component does as a Double.
void SetCode(IStyleEditorClient& client, qint32 layerID, double code);
/// Stores whether a group is expanded in the tree.
void SetExpanded(IStyleEditorClient& client, qint32 groupID, bool expanded);

} // namespace Orvane::HostTests::ComponentCalls
