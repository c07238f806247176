// SPDX-License-Identifier: MIT
#include "shell/map/TableImport.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/ServerTables.h"
#include "shell/map/FoundLayers.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>

namespace Orvane {

FoundData LookIntoTables(
    const std::shared_ptr<const ServerTables>& server, const QStringList& tables, Progress& progress)
{
    FoundData data;
    std::vector<SourceLayer> layers;
    layers.reserve(size_t(tables.size()));
    for (const QString& table : tables) {
        progress.StopIfCancelled();
        progress.SetSubject(table);
        progress.Report(double(layers.size()) / double(tables.size()));
        try {
            layers.push_back(server->Describe(table, progress));
        } catch (const RunTimeError& error) {
            data.problems.push_back({table, error.Description()});
        }
    }
    layers = LayersToShow(layers);
    if (!layers.empty())
        data.sources.push_back({QString::fromLatin1(ServerTablePath), std::move(layers), server});
    return data;
}

} // namespace Orvane
