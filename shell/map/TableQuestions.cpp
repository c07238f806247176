// SPDX-License-Identifier: MIT
#include "shell/map/TableQuestions.h"

#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/ReadingBound.h"
#include "shell/dialogs/TableColumnsDialog.h"
#include "shell/map/MapSession.h"
#include "shell/window/RunWithProgress.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace Orvane::TableQuestions {

namespace {

using Purpose = TableColumnsDialog::Purpose;

QString OpeningText()
{
    return QCoreApplication::translate("MainWindow", "Opening map data");
}

bool IsTable(const LayerSource& source)
{
    return !source.choice.columns.IsEmpty();
}

std::vector<LayerSource> TableLayers(const MapDocument& document)
{
    std::vector<LayerSource> sources = document.Sources();
    std::erase_if(sources, [](const LayerSource& source) { return !IsTable(source); });
    return sources;
}

void ReadRows(TableChoice& choice)
{
    try {
        for (const TableRows& table : DataSource(choice.path).Tables()) {
            if (table.layer == choice.table.layer)
                choice.table = table;
        }
    } catch (const RunTimeError&) { // it keeps its columns
    }
}

// One for each layer; without rows if the file cannot be read.
std::vector<TableChoice> ChoicesOf(const std::vector<LayerSource>& layers, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    std::vector<TableChoice> choices;
    choices.reserve(layers.size());
    for (const LayerSource& layer : layers) {
        progress.StopIfCancelled();
        TableChoice& choice = choices.emplace_back();
        choice.path = layer.path;
        choice.columns = layer.choice.columns;
        choice.table.layer = layer.ogrLayer;
        ReadRows(choice);
    }
    return choices;
}

} // namespace

FoundData FindData(const QStringList& paths, QWidget& window)
{
    FoundData found = ReadOrGiveUp(
        &window, OpeningText(), [paths](Progress& progress) { return LookInto(paths, progress); });
    if (found.tables.empty())
        return found;
    if (!TableColumnsDialog::Ask(found.tables, Purpose::Adding, &window))
        throw Cancelled();
    return ReadOrGiveUp(
        &window, OpeningText(), [found](Progress& progress) { return WithTablesAsLayers(found, progress); });
}

bool HasTables(const MapDocument& document)
{
    return !TableLayers(document).empty();
}

bool ChangeColumns(MapSession& session, QWidget& window)
{
    const QPointer alive(&session); // the map may be saved under another name while it asks
    MapDocument& document = session.Document();
    std::vector<LayerSource> layers = TableLayers(document);
    std::vector<TableChoice> choices = ReadOrGiveUp(
        &window, OpeningText(), [layers](Progress& progress) { return ChoicesOf(layers, progress); });
    if (choices.empty() || !TableColumnsDialog::Ask(choices, Purpose::Changing, &window) || !alive)
        return false;
    bool isChanged = false;
    for (size_t i = 0; i < layers.size(); ++i)
        isChanged
            = std::exchange(layers[i].choice.columns, choices[i].columns) != choices[i].columns || isChanged;
    if (!isChanged)
        return false;
    session.Shell().RecordStep([&] {
        Transaction transaction(document.Database());
        for (const LayerSource& layer : layers)
            document.SetSource(layer);
        transaction.Commit();
        return QCoreApplication::translate("MainWindow", "Table Columns");
    });
    return true;
}

} // namespace Orvane::TableQuestions
