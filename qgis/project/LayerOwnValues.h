// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QHash>
#include <QString>

class QgsMapLayer;

namespace Orvane {

class LayerNodes;

/// Values that belong to a layer, whichever of its named styles it shows: QGIS keeps flags and custom
/// properties in each style. The number of LayerIDs belongs to the layer, too.
namespace LayerOwnValues {

/// Makes a style of the layer current, which must be one of its styles. The layer keeps its code, its flags
/// and its quick mode.
void SwitchStyle(QgsMapLayer& layer, const LayerNodes& nodes, const QString& style);

/// Keeps these values of the layer again, if QGIS has replaced its style: the code, and the flags and the
/// hiding that do not contradict what QGIS shows.
void Restore(QgsMapLayer& layer, const LayerNodes& nodes, const LayerValues& known);

/// Styles as CarryToStyles has found or left them, by layer, name and values.
using CarriedStyles = QHash<QString, QString>;

/// Gives all other styles of the layer the number, the code and the flag "Selectable" that it has now.
/// carried: spares reading the styles that are as they were at the last call.
void CarryToStyles(QgsMapLayer& layer, CarriedStyles& carried);

} // namespace LayerOwnValues

} // namespace Orvane
