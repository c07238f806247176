// SPDX-License-Identifier: MIT
#include "shell/command/ImportCommand.h"

#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/data/DataFiles.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/ImportPlan.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <limits>
#include <memory>

namespace Orvane {

namespace {

QString ImportText(const char* text)
{
    return QCoreApplication::translate("ImportCommand", text);
}

QStringList FilesOf(const QStringList& words)
{
    QStringList files;
    for (const QString& word : words)
        files << (QFileInfo(word).isDir() ? DataFiles::In(word) : QStringList(word));
    return files;
}

struct ImportRequest {
    QStringList files;
    QString map;
    QString dataSystem; // of data that name none; empty to find it
    QString mapSystem; // empty: the map's own, or the one that the data decide
};

// The map, if it is there already.
std::unique_ptr<MapDocument> ExistingMap(const QString& path)
{
    return QFileInfo::exists(path) ? MapDocument::Open(path) : nullptr;
}

ImportPlan Plan(const ImportRequest& request, const MapDocument* map)
{
    ImportTarget target = map ? TargetOf(*map) : ImportTarget();
    target.forUnnamed = request.dataSystem;
    if (!request.mapSystem.isEmpty())
        target.system = request.mapSystem;
    Progress progress;
    return PlanImport(request.files, target, progress);
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
    for (const QString& note : plan.NoteTexts())
        TellLine(terminal, note);
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
    for (const QString& problem : plan.data.problems)
        TellError(terminal, problem);
    if (plan.data.sources.empty()) {
        TellError(terminal, ImportText(QT_TRANSLATE_NOOP("ImportCommand", "There is nothing to import.")));
        return ExitCode::Problems;
    }
    const auto add = [&](MapDocument& document) { AddPlanned(document, request, plan); };
    if (map)
        add(*map);
    else
        MapDocument::Make(request.map, IfExists::Refuse, add);
    TellNotes(plan, terminal);
    TellLine(
        terminal,
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Layers added to \"%1\": %2"))
            .arg(QFileInfo(request.map).fileName(), QLocale().toString(qulonglong(LayerCount(plan.data)))));
    const bool isAll = plan.data.problems.isEmpty() && plan.Unknown().isEmpty();
    return isAll ? ExitCode::Done : ExitCode::Problems;
}

struct ImportOptions {
    QCommandLineOption to{
        QStringLiteral("to"),
        ImportText(
            QT_TRANSLATE_NOOP("ImportCommand", "The map file to add to; it is made when there is none.")),
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
    return {};
}

void SetUp(CommandReader& reader, const ImportOptions& options)
{
    reader.AddCommand(QStringLiteral("import"));
    reader.RequireWords(1, std::numeric_limits<qsizetype>::max());
    reader.Options().addOptions({options.to, options.dataSystem, options.mapSystem});
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
        {FilesOf(reader.Words()), reader.Value(options.to), reader.Value(options.dataSystem),
         reader.Value(options.mapSystem)},
        terminal);
}

} // namespace Orvane
