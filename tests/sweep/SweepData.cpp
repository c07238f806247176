// SPDX-License-Identifier: MIT
#include "sweep/SweepData.h"

#include "mapkit/common/Progress.h"
#include "sweep/SweepFolder.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFile>

namespace Orvane::Testing {

namespace {

constexpr auto OneLine = R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},)"
                         R"("geometry":{"type":"LineString","coordinates":[[1,2],[3,4]]}}]})";

} // namespace

QString WriteSweepData(const SweepFolder& folder)
{
    QString path = folder.PathBeside("field.geojson");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(OneLine) < 0)
        throw RunTimeError(1, QStringLiteral("This file cannot be written: ") + path);
    return path;
}

FoundData FindSweepData(const SweepFolder& folder)
{
    Progress progress;
    return LookInto({WriteSweepData(folder)}, progress);
}

} // namespace Orvane::Testing
