// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;

/// The absolute path where the picture under all layers is found now, according to the settings of a map
/// file; empty for none, and for a database without settings. mapPath: absolute. Errors are those of the
/// database.
QString FindBackdrop(ILayerStore& database, const QString& mapPath);

} // namespace Orvane
