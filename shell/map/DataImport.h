// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"
#include "mapkit/document/MapDocument.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

class Progress;

/// What was found in files.
struct FoundData {
    struct Source {
        QString path;
        std::vector<SourceLayer> layers;
    };
    std::vector<Source> sources; ///< files with at least one layer
    QStringList problems; ///< one sentence for each file without layers
};

/// Examines files without reading their features; for any thread. Raises Cancelled.
FoundData LookInto(const QStringList& paths, Progress& progress);

/// A new layer with the data of a source's layer. The number selects its colours; points are drawn over
/// lines, and lines over areas.
NewLayer LayerFor(const QString& path, const SourceLayer& found, size_t number);

/// Adds what was found to the map, a group for each file and a layer for each of its layers, each in a
/// different colour, in one transaction. The first data set the map's coordinate system. Errors are those of
/// the database; the map is then as before.
void AddToMap(MapDocument& document, const FoundData& data);

} // namespace Orvane
