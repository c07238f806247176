// SPDX-License-Identifier: MIT
#pragma once

#include <QSignalBlocker>

namespace Orvane {

/// While it exists, nobody is notified of changes of the layer that it was made for. At each signal of a
/// layer, QGIS looks through all layers; who silences one tells QGIS afterwards, once for all.
using LayerSilence = QSignalBlocker;

} // namespace Orvane
