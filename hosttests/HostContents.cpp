// SPDX-License-Identifier: MIT
#include "hosttests/HostContents.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane::HostTests {

namespace {

std::size_t PositionOf(std::string_view column)
{
    const std::size_t position = FindLayerColumn(column);
    if (position == LayerColumns.size())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Layers has no such column"));
    return position;
}

} // namespace

ContentsLayer::ContentsLayer(qint32 layerID, const QString& name, const Value& code)
{
    std::transform(LayerColumns.begin(), LayerColumns.end(), m_values.begin(), DefaultValue);
    Set("LayerID", layerID).Set("Name", name).Set("Code", code);
}

ContentsLayer& ContentsLayer::Set(std::string_view column, const Value& value)
{
    m_values[PositionOf(column)] = value;
    return *this;
}

const Value& ContentsLayer::Get(std::string_view column) const
{
    return m_values[PositionOf(column)];
}

const ContentsLayer& HostContents::Layer(qint32 layerID) const
{
    const auto found = std::find_if(layers.begin(), layers.end(), [layerID](const ContentsLayer& layer) {
        return ToInt32(layer.Get("LayerID")) == layerID;
    });
    if (found == layers.end())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("There is no such layer"));
    return *found;
}

} // namespace Orvane::HostTests
