// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeStore.h"

#include "component/common/EditPermission.h"
#include "component/model/CheckedColumns.h"
#include "component/model/LayerCursors.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

// A cursor on the node's row; nullptr when there is none.
std::unique_ptr<IRecordset> RowOf(IStyleEditorClient& client, const NodeReference& node)
{
    auto table = node.isGroup ? OpenGroupsByID(client.GetDatabase()) : OpenLayersByID(client);
    return SeekID(*table, node.isGroup ? node.groupID : node.layerID) ? std::move(table) : nullptr;
}

} // namespace

bool NodeExists(IStyleEditorClient& client, const NodeReference& node)
{
    return RowOf(client, node) != nullptr;
}

bool CanEditNode(IStyleEditorClient& client, const NodeReference& node)
{
    if (!WhyNotEdited().isEmpty())
        return false;
    const auto row = RowOf(client, node);
    return row && (node.isGroup || !FlagIsSet(*row, "SystemLayer"));
}

QString ReadNodeName(IStyleEditorClient& client, const NodeReference& node)
{
    const auto row = RowOf(client, node);
    const Value name = row ? row->Field("Name") : Value::Null();
    return ToTextOrNone(name);
}

void StoreGroupsExpanded(IStyleEditorClient& client, const std::vector<qint32>& groupIDs, bool expanded)
{
    Transaction transaction(client.GetDatabase());
    for (qint32 groupID : groupIDs)
        StoreGroupExpanded(client, groupID, expanded);
    transaction.Commit();
}

} // namespace Orvane
