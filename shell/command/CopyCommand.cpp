// SPDX-License-Identifier: MIT
#include "shell/command/CopyCommand.h"

#include "mapkit/document/MapDocument.h"
#include "shell/command/Interruption.h"
#include "shell/servers/ServerAccess.h"
#include "store/StorePlace.h"
#include "store/StoreWatcher.h"

#include <QCoreApplication>

namespace Orvane {

namespace {

QString CopyText(const char* text)
{
    return QCoreApplication::translate("CopyCommand", text);
}

int CopyAndTell(const QString& from, const QString& to, IfExists ifExists, const Terminal& terminal)
{
    const Interruption interruption;
    const StoreWatcher goOn = [&](double /*done*/) { return !interruption.IsAsked(); };
    MapDocument::Copy(from, to, ifExists, AccessHere(from), AccessHere(to), goOn);
    TellLine(
        terminal,
        CopyText(QT_TRANSLATE_NOOP("CopyCommand", "\"%1\" was copied to \"%2\"."))
            .arg(StorePlace::FileNameOf(from), StorePlace::FileNameOf(to)));
    return ExitCode::Done;
}

} // namespace

int CopyCommand(const QStringList& arguments, const Terminal& terminal)
{
    const QCommandLineOption replace(
        QStringLiteral("replace"),
        CopyText(QT_TRANSLATE_NOOP(
            "CopyCommand", "Replace the map that is at the new place, unless it is open anywhere.")));
    CommandReader reader(CopyText(QT_TRANSLATE_NOOP(
        "CopyCommand",
        "Copy a map with all its layers, groups, schemes and themes: a file to a server, a map on a server "
        "to a "
        "file, or one to another of the same kind. The data of the layers stay where they are. A place on a "
        "server is written as postgresql://SERVER/DATABASE?schema=MAP.\n"
        "Exit code: 0 the copy is complete, 1 there is none, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("copy"));
    reader.RequireWords(2, 2);
    reader.Options().addOption(replace);
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"),
        CopyText(QT_TRANSLATE_NOOP("CopyCommand", "The map: a file, or a place on a server.")));
    reader.Options().addPositionalArgument(
        QStringLiteral("NEW"),
        CopyText(
            QT_TRANSLATE_NOOP("CopyCommand", "Where the copy is made: a file, or a place on a server.")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    const QStringList words = reader.Words();
    return CopyAndTell(
        words[0], words[1], reader.IsSet(replace) ? IfExists::Replace : IfExists::Refuse, terminal);
}

} // namespace Orvane
