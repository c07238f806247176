// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;

/// The picture under all layers that a map file's settings name, as an absolute path where it is found now;
/// empty for none, and for a database without settings. mapPath: absolute. Errors are those of the database.
QString FindBackdrop(ILayerStore& database, const QString& mapPath);

} // namespace Orvane
