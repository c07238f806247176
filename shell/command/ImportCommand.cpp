// SPDX-License-Identifier: MIT
#include "shell/command/ImportCommand.h"

#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/document/MapDocument.h"
#include "shell/command/DataSentences.h"
#include "shell/map/ImportPlan.h"
#include "shell/servers/ServerAccess.h"
#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <limits>
#include <memory>

namespace Orvane {

namespace {

QString ImportText(const char* text)
{
    return QCoreApplication::translate("ImportCommand", text);
}

QStringList NamesIn(const CoordinateColumns& columns)
{
    return columns.wkt.isEmpty() ? QStringList{columns.x, columns.y} : QStringList{columns.wkt};
}

// The table's name for that column; without an exact one, that which differs in case. Empty for none.
QString ColumnNamed(const TableRows& table, const QString& column)
{
    if (column.isEmpty() || table.columns.contains(column))
        return column;
    const auto same = std::find_if(table.columns.begin(), table.columns.end(), [&](const QString& known) {
        return known.compare(column, Qt::CaseInsensitive) == 0;
    });
    return same == table.columns.end() ? QString() : *same;
}

// A sentence for the first column that the table lacks.
QString LackIn(const TableChoice& table, const CoordinateColumns& columns)
{
    const QStringList names = NamesIn(columns);
    const auto missing = std::find_if(names.begin(), names.end(), [&](const QString& name) {
        return ColumnNamed(table.table, name).isEmpty();
    });
    const QString file = QFileInfo(table.path).fileName();
    const bool isAlone = table.table.layer == QFileInfo(table.path).completeBaseName();
    return ImportText(
               QT_TRANSLATE_NOOP("ImportCommand", "\"%1\" has no column named \"%2\". Its columns are: %3"))
        .arg(
            isAlone ? file : QStringLiteral("%1 (%2)").arg(file, table.table.layer),
            missing == names.end() ? QString() : *missing, table.table.columns.join(QLatin1String(", ")));
}

bool IsFileUsed(const FoundData& found, const QString& path)
{
    const auto hasLayers = [&](const FoundData::Source& source) { return source.path == path; };
    return std::any_of(found.sources.begin(), found.sources.end(), hasLayers)
        || std::any_of(found.tables.begin(), found.tables.end(), [&](const TableChoice& table) {
               return table.path == path && !table.columns.IsEmpty();
           });
}

// A table without the named columns is left out; a problem if nothing of its file is left.
void ChooseColumns(FoundData& found, const CoordinateColumns& columns)
{
    for (TableChoice& table : found.tables) {
        const CoordinateColumns own
            = {ColumnNamed(table.table, columns.x), ColumnNamed(table.table, columns.y),
               ColumnNamed(table.table, columns.wkt)};
        table.columns = own;
    }
    for (const TableChoice& table : found.tables) {
        if (!IsFileUsed(found, table.path))
            found.problems.push_back({table.path, LackIn(table, columns)});
    }
    std::erase_if(found.tables, [](const TableChoice& table) { return table.columns.IsEmpty(); });
}

void TellColumns(const FoundData& found, const Terminal& terminal)
{
    for (const FoundData::Source& source : found.sources) {
        for (const SourceLayer& layer : source.layers) {
            const CoordinateColumns& columns = layer.choice.columns;
            if (columns.IsEmpty())
                continue;
            const QString text = ImportText(
                QT_TRANSLATE_NOOP("ImportCommand", "Coordinates of \"%1\" are in these columns: %2"));
            TellLine(terminal, text.arg(PathToTell(source.path), NamesIn(columns).join(QLatin1String(", "))));
        }
    }
}

struct ImportRequest {
    QStringList files; // or folders
    QString map;
    QString dataSystem; // of data that name none; empty to find it
    QString mapSystem; // empty: the map's own, or the one that the data decide
    CoordinateColumns columns; // of tables; empty: they are guessed
};

// The map, if it is there already.
std::unique_ptr<MapDocument> ExistingMap(const QString& place)
{
    return LayerStores::Exists(place) ? MapDocument::Open(place, AccessHere(place)) : nullptr;
}

ImportPlan Plan(const ImportRequest& request, const MapDocument* map)
{
    ImportTarget target = map ? TargetOf(*map) : ImportTarget();
    target.forUnnamed = request.dataSystem;
    if (!request.mapSystem.isEmpty())
        target.system = request.mapSystem;
    Progress progress;
    FoundData found = LookInto(request.files, progress);
    if (!request.columns.IsEmpty())
        ChooseColumns(found, request.columns);
    return PlanImport(WithTablesAsLayers(std::move(found), progress), target, progress);
}

void AddPlanned(MapDocument& document, const ImportRequest& request, const ImportPlan& plan)
{
    Transaction transaction(document.Database());
    if (!request.mapSystem.isEmpty())
        document.SetSystem(request.mapSystem);
    AddToMap(document, plan.data);
    transaction.Commit();
}

void TellNotes(const ImportPlan& plan, const Terminal& terminal)
{
    const QStringList notes = plan.NoteTexts();
    for (qsizetype i = 0; i < notes.size(); ++i)
        TellLine(terminal, WithPaths(notes[i], plan.notes[size_t(i)].paths));
    if (!plan.Unknown().isEmpty())
        TellError(
            terminal,
            ImportText(QT_TRANSLATE_NOOP(
                "ImportCommand", "Some data have no known place. --crs tells their coordinate system.")));
}

int Import(const ImportRequest& request, const Terminal& terminal)
{
    const std::unique_ptr<MapDocument> map = ExistingMap(request.map);
    const ImportPlan plan = Plan(request, map.get());
    for (const DataProblem& problem : plan.data.problems)
        TellError(terminal, WithPath(problem.text, problem.path));
    if (plan.data.sources.empty()) {
        TellError(terminal, ImportText(QT_TRANSLATE_NOOP("ImportCommand", "There is nothing to import.")));
        return ExitCode::Problems;
    }
    TellColumns(plan.data, terminal);
    const auto add = [&](MapDocument& document) { AddPlanned(document, request, plan); };
    if (map)
        add(*map);
    else
        MapDocument::Make(request.map, IfExists::Refuse, add, AccessHere(request.map));
    TellNotes(plan, terminal);
    TellLine(
        terminal,
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Layers added to \"%1\": %2"))
            .arg(StorePlace::FileNameOf(request.map), QLocale().toString(qulonglong(LayerCount(plan.data)))));
    const bool isAll = plan.data.problems.empty() && plan.IsPlaced();
    return isAll ? ExitCode::Done : ExitCode::Problems;
}

struct ImportOptions {
    QCommandLineOption to{
        QStringLiteral("to"),
        ImportText(QT_TRANSLATE_NOOP(
            "ImportCommand",
            "The map to add to: a file, or a place on a server; it is made when there is none.")),
        QStringLiteral("MAP")};
    QCommandLineOption dataSystem{
        QStringLiteral("crs"),
        ImportText(QT_TRANSLATE_NOOP(
            "ImportCommand",
            "The coordinate system of the data that name none, such as EPSG:25832; data that name one keep "
            "it. Without this option, degrees are assumed where they fit, else the map's system.")),
        QStringLiteral("SYSTEM")};
    QCommandLineOption mapSystem{
        QStringLiteral("map-crs"),
        ImportText(QT_TRANSLATE_NOOP(
            "ImportCommand",
            "The coordinate system of the map. Without this option, a map keeps its own; for a new map the "
            "data of the largest area decide.")),
        QStringLiteral("SYSTEM")};
    QCommandLineOption columns{
        QStringLiteral("columns"),
        ImportText(QT_TRANSLATE_NOOP(
            "ImportCommand", "The columns of tables with the coordinates; without this they are guessed.")),
        QStringLiteral("X,Y")};
    QCommandLineOption wkt{
        QStringLiteral("wkt"),
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "The column of tables with geometries as text (WKT).")),
        QStringLiteral("COLUMN")};
};

QString MistakeIn(const CommandReader& reader, const ImportOptions& options)
{
    if (reader.Value(options.to).isEmpty())
        return ImportText(QT_TRANSLATE_NOOP("ImportCommand", "\"--to MAP\" is missing."));
    for (const QCommandLineOption& option : {options.dataSystem, options.mapSystem}) {
        if (reader.IsSet(option) && !FactsOf(reader.Value(option)).isKnown)
            return ImportText(
                       QT_TRANSLATE_NOOP("ImportCommand", "--%1: \"%2\" is not a known coordinate system."))
                .arg(option.names().constFirst(), reader.Value(option));
    }
    const QStringList pair = reader.Value(options.columns).split(QLatin1Char(','));
    if (reader.IsSet(options.columns) && (pair.size() != 2 || pair.contains(QString())))
        return ImportText(QT_TRANSLATE_NOOP("ImportCommand", "\"--columns\" needs two names: \"X,Y\"."));
    return {};
}

CoordinateColumns ColumnsIn(const CommandReader& reader, const ImportOptions& options)
{
    if (reader.IsSet(options.wkt))
        return {{}, {}, reader.Value(options.wkt)};
    const QStringList pair = reader.Value(options.columns).split(QLatin1Char(','));
    return {pair.value(0), pair.value(1), {}};
}

void SetUp(CommandReader& reader, const ImportOptions& options)
{
    reader.AddCommand(QStringLiteral("import"));
    reader.RequireWords(1, std::numeric_limits<qsizetype>::max());
    reader.Options().addOptions(
        {options.to, options.dataSystem, options.mapSystem, options.columns, options.wkt});
    reader.Options().addPositionalArgument(
        QStringLiteral("DATA"),
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Files, or folders with files in them.")),
        QStringLiteral("DATA..."));
}

} // namespace

int ImportCommand(const QStringList& arguments, const Terminal& terminal)
{
    const ImportOptions options;
    CommandReader reader(ImportText(QT_TRANSLATE_NOOP(
        "ImportCommand",
        "Add data to a map file: a group for each file, a layer for each of its layers.\n"
        "Exit code: 0 all was added, 1 something was not or has no known place, 2 the command was not "
        "understood.")));
    SetUp(reader, options);
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    const QString mistake = MistakeIn(reader, options);
    if (!mistake.isEmpty())
        return reader.Refuse(terminal, mistake);
    return Import(
        {reader.Words(), reader.Value(options.to), reader.Value(options.dataSystem),
         reader.Value(options.mapSystem), ColumnsIn(reader, options)},
        terminal);
}

} // namespace Orvane
