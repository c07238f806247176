// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;
class MapDocument;

/// Earlier versions stored one picture under all layers as a setting of the map; now it is a raster layer.
namespace EarlierBackdrop {

/// The absolute path where that picture is found now; empty for none, and for a database without settings.
/// mapPath: absolute. Errors are those of the database.
QString Find(ILayerStore& database, const QString& mapPath);

/// Makes the picture of the map, if it has one, a raster layer below the others, even if its file is missing
/// now. In one transaction. Errors are those of the database.
void MakeLayer(MapDocument& map);

} // namespace EarlierBackdrop

} // namespace Orvane
