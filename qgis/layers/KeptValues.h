// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <optional>
#include <string_view>

class QgsMapLayer;

namespace Orvane {

/// What QGIS has no word for, as custom properties "orvane/<name>" of a layer: they are saved with the
/// project and copied with the layer. Only for what QGIS does not show: a kept value never hides one that the
/// user sees.
namespace KeptValues {

/// The name of the custom property.
QString PropertyName(std::string_view name);

/// The kept number or boolean as a number; nothing if none is kept, or none that is a number.
std::optional<double> Number(const QgsMapLayer& layer, std::string_view name);
std::optional<qint32> Whole(const QgsMapLayer& layer, std::string_view name);
std::optional<bool> Flag(const QgsMapLayer& layer, std::string_view name);

/// Keeps a value; Null and Empty remove it. QGIS, which shows none of them, hears nothing.
void Keep(QgsMapLayer& layer, std::string_view name, const Value& value);

} // namespace KeptValues

} // namespace Orvane
