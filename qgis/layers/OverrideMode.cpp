// SPDX-License-Identifier: MIT
#include "qgis/layers/OverrideMode.h"

#include "qgis/layers/KeptValues.h"

#include <qgslayertreelayer.h>
#include <qgsmaplayer.h>

#include <cmath>

namespace Orvane {

namespace {

constexpr std::string_view ModeName = "OverrideMode";
constexpr std::string_view OpacityName = "FormerOpacity";
constexpr std::string_view TickName = "FormerTick";
constexpr double BackdropPart = 0.35;
constexpr double OpacitySlack = 0.001;

bool IsFaded(const QgsMapLayer& layer)
{
    const std::optional<double> former = KeptValues::Number(layer, OpacityName);
    return former && std::abs(layer.opacity() - *former * BackdropPart) < OpacitySlack;
}

bool IsUnticked(const QgsMapLayer& layer, const LayerNodes& nodes)
{
    const QgsLayerTreeLayer* node = nodes.Of(layer);
    return node && !node->itemVisibilityChecked();
}

void SetTick(const QgsMapLayer& layer, const LayerNodes& nodes, bool ticked)
{
    if (QgsLayerTreeLayer* node = nodes.Of(layer))
        node->setItemVisibilityChecked(ticked);
}

void ForgetMode(QgsMapLayer& layer)
{
    for (const std::string_view name : {ModeName, OpacityName, TickName})
        KeptValues::Keep(layer, name, Value::Null());
}

void BeginBackdrop(QgsMapLayer& layer)
{
    KeptValues::Keep(layer, OpacityName, layer.opacity());
    layer.setOpacity(layer.opacity() * BackdropPart);
}

void BeginHiding(QgsMapLayer& layer, const LayerNodes& nodes)
{
    KeptValues::Keep(layer, TickName, !IsUnticked(layer, nodes));
    SetTick(layer, nodes, false);
}

void EndMode(QgsMapLayer& layer, const LayerNodes& nodes)
{
    const qint32 mode = ReadOverrideMode(layer, nodes);
    const double opacity = KeptValues::Number(layer, OpacityName).value_or(1);
    const bool ticked = KeptValues::Flag(layer, TickName).value_or(true);
    ForgetMode(layer);
    if (mode == BackdropMode)
        layer.setOpacity(opacity);
    else if (mode == HiddenMode)
        SetTick(layer, nodes, ticked);
}

} // namespace

qint32 ReadOverrideMode(const QgsMapLayer& layer, const LayerNodes& nodes)
{
    const qint32 mode = KeptValues::Whole(layer, ModeName).value_or(NormalMode);
    const bool lasts
        = (mode == BackdropMode && IsFaded(layer)) || (mode == HiddenMode && IsUnticked(layer, nodes));
    return lasts ? mode : NormalMode;
}

bool WriteOverrideMode(QgsMapLayer& layer, const LayerNodes& nodes, qint32 mode)
{
    if (mode == ReadOverrideMode(layer, nodes))
        return true;
    EndMode(layer, nodes);
    if (mode == BackdropMode)
        BeginBackdrop(layer);
    else if (mode == HiddenMode)
        BeginHiding(layer, nodes);
    else
        return true;
    KeptValues::Keep(layer, ModeName, mode);
    const bool took = ReadOverrideMode(layer, nodes) == mode;
    if (!took)
        ForgetMode(layer);
    return took;
}

void ForgetEndedMode(QgsMapLayer& layer, const LayerNodes& nodes)
{
    if (KeptValues::Whole(layer, ModeName) && ReadOverrideMode(layer, nodes) == NormalMode)
        ForgetMode(layer);
}

std::optional<bool> TickBeforeHiding(const QgsMapLayer& layer, const LayerNodes& nodes)
{
    if (ReadOverrideMode(layer, nodes) != HiddenMode)
        return std::nullopt;
    return KeptValues::Flag(layer, TickName).value_or(true);
}

void SetTickBeforeHiding(QgsMapLayer& layer, bool ticked)
{
    KeptValues::Keep(layer, TickName, ticked);
}

} // namespace Orvane
