// SPDX-License-Identifier: MIT
#include "qgis/layers/KeptValues.h"

#include "qgis/layers/LayerSilence.h"

#include <QVariant>
#include <qgsmaplayer.h>

#include <cmath>
#include <limits>

namespace Orvane::KeptValues {

namespace {

QVariant VariantOf(const Value& value)
{
    switch (value.Kind()) {
    case ValueKind::Boolean:
        return *value.Get<bool>();
    case ValueKind::Int16:
        return int(*value.Get<qint16>());
    case ValueKind::Int32:
        return *value.Get<qint32>();
    case ValueKind::Single:
        return double(*value.Get<float>());
    case ValueKind::Double:
        return *value.Get<double>();
    case ValueKind::Text:
        return *value.Get<QString>();
    default:
        return {};
    }
}

} // namespace

QString PropertyName(std::string_view name)
{
    return QStringLiteral("orvane/") + QString::fromLatin1(name.data(), int(name.size()));
}

std::optional<double> Number(const QgsMapLayer& layer, std::string_view name)
{
    const QVariant kept = layer.customProperty(PropertyName(name));
    if (kept.userType() == QMetaType::Bool)
        return kept.toBool() ? 1 : 0;
    bool ok = false;
    const double number = kept.toDouble(&ok);
    return ok && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

std::optional<qint32> Whole(const QgsMapLayer& layer, std::string_view name)
{
    using Limits = std::numeric_limits<qint32>;
    const std::optional<double> number = Number(layer, name);
    if (!number || *number < double(Limits::min()) || *number > double(Limits::max()))
        return std::nullopt;
    return qint32(*number);
}

std::optional<bool> Flag(const QgsMapLayer& layer, std::string_view name)
{
    const QVariant kept = layer.customProperty(PropertyName(name));
    if (kept.userType() == QMetaType::QString && kept.toString() == QLatin1String("true"))
        return true; // as older project files spell it
    const std::optional<double> number = Number(layer, name);
    return number ? std::optional<bool>(*number != 0) : std::nullopt;
}

void Keep(QgsMapLayer& layer, std::string_view name, const Value& value)
{
    const QString property = PropertyName(name);
    const QVariant variant = VariantOf(value);
    const QVariant kept = layer.customProperty(property);
    if (variant == kept && variant.isValid() == kept.isValid())
        return;
    const LayerSilence silence(&layer); // for each signal, QGIS's panel would walk through the whole tree
    if (variant.isValid())
        layer.setCustomProperty(property, variant);
    else
        layer.removeCustomProperty(property);
}

} // namespace Orvane::KeptValues
