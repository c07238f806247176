// SPDX-License-Identifier: MIT
#include "end_to_end/Town.h"
#include "examples/sample_maps/SampleMap.h"
#include "mapkit/document/MapDocument.h"
#include "store/opening/ServerMaps.h"
#include "support/PrivateServer.h"

#include <QFileInfo>
#include <QTemporaryDir>

namespace Orvane::Testing {

// Each test has a folder of its own, and so maps of its own.
QString PlaceOfTown(const QTemporaryDir& folder, const QString& name)
{
    const QString test = QFileInfo(folder.path()).fileName();
    return ServerMaps::Canonical(SharedServer().Place(test + QLatin1Char(' ') + name));
}

QString MakeTown(const QTemporaryDir& folder, const QString& name)
{
    const QString file = folder.filePath(name);
    MakeTownMap(file);
    const QString place = PlaceOfTown(folder, name);
    MapDocument::Copy(file, place, IfExists::Refuse);
    return place;
}

} // namespace Orvane::Testing
