// SPDX-License-Identifier: MIT
#include "mapkit/document/EarlierBackdrop.h"

#include "mapkit/document/MapDocument.h"
#include "mapkit/document/MapSettings.h"
#include "mapkit/document/SourcePaths.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QFileInfo>

namespace Orvane::EarlierBackdrop {

namespace {

const QString PathSetting = QStringLiteral("Backdrop");
const QString RelativeSetting = QStringLiteral("BackdropRelative");

SourcePaths::Place PlaceIn(ILayerStore& database)
{
    return {MapSettings::Read(database, PathSetting), MapSettings::Read(database, RelativeSetting)};
}

} // namespace

QString Find(ILayerStore& database, const QString& mapPath)
{
    const SourcePaths::Place place = PlaceIn(database);
    return place.path.isEmpty() ? QString() : SourcePaths(mapPath).Find(place);
}

void MakeLayer(MapDocument& map)
{
    ILayerStore& database = map.Database();
    if (database.IsReadOnly() || PlaceIn(database).path.isEmpty())
        return;
    Transaction transaction(database);
    const SourcePaths::Place place = PlaceIn(database); // another program may have been faster
    if (place.path.isEmpty())
        return;
    NewLayer layer = NewLayer::OfRaster();
    layer.path = SourcePaths(map.Path()).Find(place);
    layer.name = QFileInfo(layer.path).completeBaseName();
    map.SetPlace(map.AddLayer(layer), place);
    MapSettings::Write(database, PathSetting, {});
    MapSettings::Write(database, RelativeSetting, {});
    transaction.Commit();
}

} // namespace Orvane::EarlierBackdrop
