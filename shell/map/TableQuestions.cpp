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

#include <algorithm>
#include <map>

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

// By their names; none if the file cannot be read.
std::map<QString, TableRows> TablesIn(const QString& path)
{
    std::map<QString, TableRows> tables;
    try {
        for (const TableRows& table : DataSource(path).Tables())
            tables.emplace(table.layer, table);
    } catch (const RunTimeError&) { // the layers keep their columns
    }
    return tables;
}

// Layers that show one table with the same columns: all of it, or each one kind of geometry.
using TableParts = std::vector<LayerSource>;

bool IsSameTable(const LayerSource& one, const LayerSource& other)
{
    return one.path == other.path && one.ogrLayer == other.ogrLayer
        && one.choice.columns == other.choice.columns;
}

std::vector<TableParts> TablesOf(const MapDocument& document)
{
    std::vector<TableParts> tables;
    for (const LayerSource& layer : TableLayers(document)) {
        const auto known = std::find_if(tables.begin(), tables.end(), [&](const TableParts& parts) {
            return IsSameTable(parts.front(), layer);
        });
        if (known == tables.end())
            tables.push_back({layer});
        else
            known->push_back(layer);
    }
    return tables;
}

// One for each table; without rows if the file cannot be read.
std::vector<TableChoice> ChoicesOf(const std::vector<TableParts>& tables, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    std::map<QString, std::map<QString, TableRows>> rows; // by path
    std::vector<TableChoice> choices;
    choices.reserve(tables.size());
    for (const TableParts& table : tables) {
        progress.StopIfCancelled();
        const LayerSource& layer = table.front();
        const auto [file, isNew] = rows.try_emplace(layer.path);
        if (isNew)
            file->second = TablesIn(layer.path);
        TableChoice& choice = choices.emplace_back();
        choice.path = layer.path;
        choice.columns = layer.choice.columns;
        choice.table = file->second[layer.ogrLayer];
        choice.table.layer = layer.ogrLayer;
    }
    return choices;
}

// The rows of X and Y are points. If no part shows points, the first one then shows all.
void Choose(TableParts& parts, const CoordinateColumns& columns)
{
    for (LayerSource& part : parts)
        part.choice.columns = columns;
    const bool isShown = std::any_of(parts.begin(), parts.end(), [](const LayerSource& part) {
        return part.choice.Takes(FeatureKind::Point);
    });
    if (columns.wkt.isEmpty() && !isShown)
        parts.front().choice.kinds.clear();
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
    std::vector<TableParts> tables = TablesOf(document);
    std::vector<TableChoice> choices = ReadOrGiveUp(
        &window, OpeningText(), [tables](Progress& progress) { return ChoicesOf(tables, progress); });
    if (choices.empty() || !TableColumnsDialog::Ask(choices, Purpose::Changing, &window) || !alive)
        return false;
    std::vector<LayerSource> changed;
    for (size_t i = 0; i < tables.size(); ++i) {
        if (tables[i].front().choice.columns == choices[i].columns)
            continue;
        Choose(tables[i], choices[i].columns);
        changed.insert(changed.end(), tables[i].begin(), tables[i].end());
    }
    if (changed.empty())
        return false;
    session.Shell().RecordStep([&] {
        Transaction transaction(document.Database());
        for (const LayerSource& layer : changed)
            document.SetSource(layer);
        transaction.Commit();
        return QCoreApplication::translate("MainWindow", "Table Columns");
    });
    return true;
}

} // namespace Orvane::TableQuestions
