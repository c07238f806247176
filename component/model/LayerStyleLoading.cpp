// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleLoading.h"

#include "component/model/LayerCursors.h"
#include "component/model/LayerRowReader.h"
#include "component/model/LayerRowValues.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>

#include <algorithm>
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
    std::optional<LayerStyle> Look(qint32 layerID)
    {
        if (!SeekID(*m_layers, layerID))
            return std::nullopt;
        return m_rows.Read(*m_layers, LayerRowValues(*m_layers));
    }

    /// Sees the layer and takes from style what differs in it. False if it does not exist.
    bool Combine(qint32 layerID, LayerStyle& style)
    {
        const std::optional<LayerStyle> member = See(layerID);
        if (member && style.Intersect(*member))
            m_result.decisive.push_back(layerID);
        return member.has_value();
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

// What the layers have in common begins with the first one, for Begin::WithOneThatExists with another one if
// that has gone: it would leave nothing.
enum class Begin { WithTheFirst, WithOneThatExists };

ReadingResult
LoadCommon(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, Begin begin, LayerStyle& style)
{
    if (layerIDs.empty())
        return {};
    NodeReading reading(client);
    auto first = layerIDs.begin();
    std::optional<LayerStyle> look = reading.Look(*first);
    while (begin == Begin::WithOneThatExists && !look && std::next(first) != layerIDs.end())
        look = reading.Look(*++first);
    style = look ? *std::move(look) : LayerStyle();
    for (const qint32 layerID : layerIDs)
        reading.Combine(layerID, style);
    ReadingResult result = reading.Finish(style);
    result.decisive.push_back(*first);
    return result;
}

bool Holds(const QSet<qint32>& layerIDs, const std::vector<qint32>& wanted)
{
    return std::any_of(
        wanted.begin(), wanted.end(), [&](qint32 layerID) { return layerIDs.contains(layerID); });
}

// read: some of the known ones, in the same order.
template <typename Layer> void Update(std::vector<Layer>& known, const std::vector<Layer>& read)
{
    auto layer = known.begin();
    for (const Layer& each : read) {
        layer = std::find_if(
            layer, known.end(), [&](const Layer& other) { return other.layerID == each.layerID; });
        if (layer != known.end())
            *layer = each;
    }
}

template <typename LayerIDs>
ReadingResult LoadTogether(IStyleEditorClient& client, LayerIDs readLayerIDs, Begin begin, LayerStyle& style)
{
    Transaction transaction(client.GetDatabase());
    LayerStyle common;
    ReadingResult result = LoadCommon(client, readLayerIDs(), begin, common);
    transaction.Commit();
    style = std::move(common);
    return result;
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

ReadingResult
LoadLayersStyle(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, LayerStyle& style)
{
    return LoadTogether(
        client, [&] { return layerIDs; }, Begin::WithOneThatExists, style);
}

ReadingResult LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style)
{
    return LoadTogether(
        client, [&] { return ReadMemberLayerIDs(client, groupID); }, Begin::WithTheFirst, style);
}

bool RereadLayersStyle(
    IStyleEditorClient& client, const QSet<qint32>& changed, LayerStyle& style, ReadingResult& reading)
{
    if (reading.fault || reading.decisive.empty() || Holds(changed, reading.decisive))
        return false;
    Transaction transaction(client.GetDatabase());
    NodeReading some(client);
    LayerStyle common = style;
    for (const SeenLayer& layer : reading.seen) {
        if (changed.contains(layer.layerID) && !some.Combine(layer.layerID, common))
            return false;
    }
    const ReadingResult read = some.Finish(common);
    transaction.Commit();
    if (read.fault)
        return false;
    style = std::move(common);
    Update(reading.seen, read.seen);
    Update(reading.modes, read.modes);
    reading.decisive.insert(reading.decisive.end(), read.decisive.begin(), read.decisive.end());
    return true;
}

} // namespace Orvane
