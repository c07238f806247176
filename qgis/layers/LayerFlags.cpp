// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerFlags.h"

#include "qgis/layers/KeptValues.h"

#include <qgsvectorlayer.h>

namespace Orvane {

namespace {

constexpr std::string_view HitableName = "Hitable";
constexpr std::string_view EnquirableName = "Enquirable";

} // namespace

PointingFlags ReadPointing(const QgsMapLayer& layer)
{
    const bool identifiable = layer.flags().testFlag(QgsMapLayer::Identifiable);
    const PointingFlags kept{
        KeptValues::Flag(layer, HitableName).value_or(identifiable),
        KeptValues::Flag(layer, EnquirableName).value_or(identifiable)};
    return (kept.hitable && kept.enquirable) == identifiable ? kept
                                                             : PointingFlags{identifiable, identifiable};
}

void WritePointing(QgsMapLayer& layer, const PointingFlags& flags)
{
    KeptValues::Keep(layer, HitableName, flags.hitable);
    KeptValues::Keep(layer, EnquirableName, flags.enquirable);
    QgsMapLayer::LayerFlags all = layer.flags();
    layer.setFlags(all.setFlag(QgsMapLayer::Identifiable, flags.hitable && flags.enquirable));
}

void ForgetEndedPointing(QgsMapLayer& layer)
{
    const bool identifiable = layer.flags().testFlag(QgsMapLayer::Identifiable);
    const bool hitable = KeptValues::Flag(layer, HitableName).value_or(identifiable);
    const bool enquirable = KeptValues::Flag(layer, EnquirableName).value_or(identifiable);
    if ((hitable && enquirable) == identifiable)
        return;
    KeptValues::Keep(layer, HitableName, Value::Null());
    KeptValues::Keep(layer, EnquirableName, Value::Null());
}

Value ReadLocked(const QgsMapLayer& layer)
{
    const auto* vectors = qobject_cast<const QgsVectorLayer*>(&layer);
    return vectors ? Value(vectors->readOnly()) : Value::Null();
}

bool WriteLocked(QgsMapLayer& layer, bool locked)
{
    auto* vectors = qobject_cast<QgsVectorLayer*>(&layer);
    return vectors && vectors->setReadOnly(locked);
}

} // namespace Orvane
