// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleLoading.h"

#include "component/model/LayerCursors.h"
#include "component/model/LayerRowReader.h"
#include "component/model/LayerRowValues.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>

#include <utility>

namespace Orvane {

namespace {

/// Reads a node's layers, one after the other.
class NodeReading
{
public:
    explicit NodeReading(IStyleEditorClient& client) : m_layers(OpenLayersByID(client)), m_rows(client) { }

    /// The layer's properties; nothing if it does not exist. The layer counts as seen.
    std::optional<LayerStyle> See(qint32 layerID)
    {
        if (!SeekID(*m_layers, layerID))
            return std::nullopt;
        const LayerRowValues values(*m_layers);
        LayerStyle style = m_rows.Read(*m_layers, values);
        m_result.seen.push_back({layerID, values.Fingerprint()});
        if (const std::optional<qint16> mode = m_rows.ReadMode(*m_layers, values))
            m_result.modes.push_back({layerID, *mode});
        return style;
    }

    /// As See, without counting as seen.
    LayerStyle Look(qint32 layerID)
    {
        if (!SeekID(*m_layers, layerID))
            return {};
        return m_rows.Read(*m_layers, LayerRowValues(*m_layers));
    }

    ReadingResult Finish(LayerStyle& style)
    {
        m_rows.DropUnread(style);
        m_result.fault = m_rows.Fault();
        return std::move(m_result);
    }

private:
    std::unique_ptr<IRecordset> m_layers;
    LayerRowReader m_rows;
    ReadingResult m_result;
};

ReadingResult LoadMembers(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, LayerStyle& style)
{
    if (layerIDs.empty())
        return {};
    NodeReading reading(client);
    style = reading.Look(layerIDs.front());
    for (const qint32 layerID : layerIDs) {
        if (const std::optional<LayerStyle> member = reading.See(layerID))
            style.Intersect(*member);
    }
    return reading.Finish(style);
}

} // namespace

ReadingResult LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style)
{
    NodeReading reading(client);
    LayerStyle read = style;
    if (std::optional<LayerStyle> found = reading.See(layerID))
        read = *std::move(found);
    ReadingResult result = reading.Finish(read);
    style = std::move(read);
    return result;
}

ReadingResult LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style)
{
    Transaction transaction(client.GetDatabase());
    LayerStyle common;
    ReadingResult result = LoadMembers(client, ReadMemberLayerIDs(client, groupID), common);
    transaction.Commit();
    style = std::move(common);
    return result;
}

} // namespace Orvane
