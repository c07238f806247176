// SPDX-License-Identifier: MIT
#include "end_to_end/Town.h"
#include "examples/sample_maps/SampleMap.h"

#include <QTemporaryDir>

namespace Orvane::Testing {

QString PlaceOfTown(const QTemporaryDir& folder, const QString& name)
{
    return folder.filePath(name);
}

QString MakeTown(const QTemporaryDir& folder, const QString& name)
{
    const QString place = PlaceOfTown(folder, name);
    MakeTownMap(place);
    return place;
}

} // namespace Orvane::Testing
