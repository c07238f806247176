// SPDX-License-Identifier: MIT
#include "shell/command/ImportCommand.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/DataFiles.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/DataImport.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <limits>

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

int Import(const QStringList& files, const QString& map, const Terminal& terminal)
{
    Progress progress;
    const FoundData found = LookInto(files, progress);
    for (const QString& problem : found.problems)
        TellError(terminal, problem);
    if (found.sources.empty()) {
        TellError(terminal, ImportText(QT_TRANSLATE_NOOP("ImportCommand", "There is nothing to import.")));
        return ExitCode::Problems;
    }
    const auto add = [&found](MapDocument& document) { AddToMap(document, found); };
    if (QFileInfo::exists(map))
        add(*MapDocument::Open(map));
    else
        MapDocument::Make(map, IfExists::Refuse, add);
    TellLine(
        terminal,
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Layers added to \"%1\": %2"))
            .arg(QFileInfo(map).fileName(), QLocale().toString(qulonglong(LayerCount(found)))));
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
    CommandReader reader(ImportText(QT_TRANSLATE_NOOP(
        "ImportCommand",
        "Add data to a map file: a group for each file, a layer for each of its layers.\n"
        "Exit code: 0 all was added, 1 something was not, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("import"));
    reader.RequireWords(1, std::numeric_limits<qsizetype>::max());
    reader.Options().addOption(to);
    reader.Options().addPositionalArgument(
        QStringLiteral("DATA"),
        ImportText(QT_TRANSLATE_NOOP("ImportCommand", "Files, or folders with files in them.")),
        QStringLiteral("DATA..."));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    if (reader.Value(to).isEmpty())
        return reader.Refuse(
            terminal, ImportText(QT_TRANSLATE_NOOP("ImportCommand", "\"--to MAP\" is missing.")));
    return Import(FilesOf(reader.Words()), reader.Value(to), terminal);
}

} // namespace Orvane
