// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"
#include "shell/map/DataImport.h"

#include <QStringList>

#include <vector>

namespace Orvane {

/// A data file's path as a command tells it: from the current folder on for what is in it, otherwise
/// absolute.
QString PathToTell(const QString& path);

/// A sentence about that data file for the terminal. In a window a file is named without its folder; a
/// command may read many of one name, so here the path takes the place of the name.
QString WithPath(const QString& sentence, const QString& path);

/// The same for a sentence that names several, in this order.
QString WithPaths(const QString& sentence, const QStringList& paths);

/// What could not be read of these sources: a sentence with the path for each reason, each once.
QStringList FailuresWithPaths(const SourceContents& contents, const std::vector<LayerSource>& sources);

} // namespace Orvane
