// SPDX-License-Identifier: MIT
#include "shell/command/ImportCommand.h"

#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/DataImport.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <limits>

namespace Orvane {

namespace {

QString ImportText(const char* text)
{
    return QCoreApplication::translate("ImportCommand", text);
}

// The columns that the command names for its tables; empty: they are guessed.
struct Wishes {
    CoordinateColumns columns;
    QString map;
};

QStringList NamesIn(const CoordinateColumns& columns)
{
    return columns.wkt.isEmpty() ? QStringList{columns.x, columns.y} : QStringList{columns.wkt};
}

bool HasAll(const TableRows& table, const QStringList& columns)
{
    return std::all_of(columns.begin(), columns.end(), [&](const QString& column) {
        return table.columns.contains(column);
    });
}

// A table without the named columns is left out.
void ChooseColumns(FoundData& found, const CoordinateColumns& columns)
{
    for (TableChoice& table : found.tables)
        table.columns = HasAll(table.table, NamesIn(columns)) ? columns : CoordinateColumns();
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
            TellLine(
                terminal,
                text.arg(QFileInfo(source.path).fileName(), NamesIn(columns).join(QLatin1String(", "))));
        }
    }
}

int Import(const QStringList& files, const Wishes& wishes, const Terminal& terminal)
{
    Progress progress;
    FoundData found = LookInto(files, progress);
    if (!wishes.columns.IsEmpty())
        ChooseColumns(found, wishes.columns);
    found = WithTablesAsLayers(std::move(found), progress);
    for (const QString& problem : found.problems)
        TellError(terminal, problem);
    if (found.sources.empty()) {
        TellError(terminal, ImportText(QT_TRANSLATE_NOOP("ImportCommand", "There is nothing to import.")));
        return ExitCode::Problems;
    }
    TellColumns(found, terminal);
    const auto add = [&found](MapDocument& document) { AddToMap(document, found); };
    if (QFileInfo::exists(wishes.map))
        add(*MapDocument::Open(wishes.map));
    else
        MapDocument::Make(wishes.map, IfExists::Refuse, add);
    TellLine(
        terminal,
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Layers added to \"%1\": %2"))
            .arg(QFileInfo(wishes.map).fileName(), QLocale().toString(qulonglong(LayerCount(found)))));
    return found.problems.isEmpty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace

int ImportCommand(const QStringList& arguments, const Terminal& terminal)
{
    const QCommandLineOption to(
        QStringLiteral("to"),
        ImportText(
            QT_TRANSLATE_NOOP("ImportCommand", "The map file to add to; it is made when there is none.")),
        QStringLiteral("MAP"));
    const QCommandLineOption columns(
        QStringLiteral("columns"),
        ImportText(QT_TRANSLATE_NOOP(
            "ImportCommand", "The columns of tables with the coordinates; without this they are guessed.")),
        QStringLiteral("X,Y"));
    const QCommandLineOption wkt(
        QStringLiteral("wkt"),
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "The column of tables with geometries as text (WKT).")),
        QStringLiteral("COLUMN"));
    CommandReader reader(ImportText(QT_TRANSLATE_NOOP(
        "ImportCommand",
        "Add data to a map file: a group for each file, a layer for each of its layers.\n"
        "Exit code: 0 all was added, 1 something was not, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("import"));
    reader.RequireWords(1, std::numeric_limits<qsizetype>::max());
    reader.Options().addOptions({to, columns, wkt});
    reader.Options().addPositionalArgument(
        QStringLiteral("DATA"),
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Files, or folders with files in them.")),
        QStringLiteral("DATA..."));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    if (reader.Value(to).isEmpty())
        return reader.Refuse(
            terminal, ImportText(QT_TRANSLATE_NOOP("ImportCommand", "\"--to MAP\" is missing.")));
    const QStringList pair = reader.Value(columns).split(QLatin1Char(','));
    if (!reader.Value(columns).isEmpty() && (pair.size() != 2 || pair.contains(QString()))) {
        return reader.Refuse(
            terminal,
            ImportText(QT_TRANSLATE_NOOP("ImportCommand", "\"--columns\" needs two names: \"X,Y\".")));
    }
    const CoordinateColumns wished = reader.Value(wkt).isEmpty()
        ? CoordinateColumns{pair.value(0), pair.value(1), {}}
        : CoordinateColumns{{}, {}, reader.Value(wkt)};
    return Import(reader.Words(), {wished, reader.Value(to)}, terminal);
}

} // namespace Orvane
