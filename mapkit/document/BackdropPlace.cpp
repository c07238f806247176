// SPDX-License-Identifier: MIT
#include "mapkit/document/BackdropPlace.h"

#include "mapkit/document/MapSettings.h"
#include "mapkit/document/SourcePaths.h"

namespace Orvane {

QString FindBackdrop(ILayerStore& database, const QString& mapPath)
{
    const SourcePaths::Place place{
        MapSettings::Read(database, QStringLiteral("Backdrop")),
        MapSettings::Read(database, QStringLiteral("BackdropRelative"))};
    return place.path.isEmpty() ? QString() : SourcePaths(mapPath).Find(place);
}

} // namespace Orvane
