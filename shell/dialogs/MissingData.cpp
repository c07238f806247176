// SPDX-License-Identifier: MIT
#include "shell/dialogs/MissingData.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/document/MapDocument.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QDirIterator>
#include <QFileInfo>
#include <QHash>

namespace Orvane {

namespace {

QString NameOf(const LayerSource& source)
{
    return QFileInfo(source.path).fileName();
}

} // namespace

std::vector<LayerSource> MissingSources(const MapDocument& document)
{
    std::vector<LayerSource> sources = document.Sources();
    std::erase_if(sources, [](const LayerSource& source) {
        return IsServerTable(source.path) || QFileInfo::exists(source.path);
    });
    return sources;
}

std::vector<LayerSource>
LookForData(const std::vector<LayerSource>& missing, const QString& folder, Progress& progress)
{
    QHash<QString, QString> paths; // by name; empty until one is found
    for (const LayerSource& source : missing)
        paths.insert(NameOf(source), {});
    // Data may be folders too.
    QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        progress.StopIfCancelled();
        const QString path = entries.next();
        const auto wanted = paths.find(entries.fileName());
        if (wanted == paths.end())
            continue;
        if (wanted->isEmpty() || path.count(QLatin1Char('/')) < wanted->count(QLatin1Char('/')))
            *wanted = path;
    }
    std::vector<LayerSource> found = missing;
    for (LayerSource& source : found)
        source.path = paths.value(NameOf(source));
    std::erase_if(found, [](const LayerSource& source) { return source.path.isEmpty(); });
    return found;
}

void TakeFoundData(MapDocument& document, const std::vector<LayerSource>& found)
{
    Transaction transaction(document.Database());
    for (const LayerSource& source : found)
        document.SetSource(source);
    transaction.Commit();
}

} // namespace Orvane
