// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <QString>
#include <QtGlobal>

#include <map>
#include <memory>
#include <vector>

namespace Orvane {

class Progress;

/// Where a layer's features come from.
struct LayerSource {
    qint32 layerID = 0;
    QString path; ///< absolute, or another name that GDAL opens
    QString ogrLayer; ///< layer within the source
    QString filter; ///< attribute condition; empty for all features
};

/// What reading the sources gave.
struct SourceContents {
    std::map<qint32, std::shared_ptr<const FeatureSet>> features; ///< by layer ID
    std::map<qint32, QString> failures; ///< why a layer could not be read, by layer ID

    /// The failures as lines to show, each once, and no more than a person will read.
    QString FailureText() const;
};

/// Reads sources into the map's coordinate system, each file opened once. What cannot be read is told in the
/// answer and does not stop the rest. Stops with what was read so far when the progress is cancelled.
SourceContents ReadSources(std::vector<LayerSource> sources, const QString& mapSystem, Progress& progress);

} // namespace Orvane
