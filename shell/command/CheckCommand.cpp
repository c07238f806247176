// SPDX-License-Identifier: MIT
#include "shell/command/CheckCommand.h"

#include "shell/command/MapCheck.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

namespace Orvane {

namespace {

QString CheckText(const char* text)
{
    return QCoreApplication::translate("CheckCommand", text);
}

void Tell(const std::vector<MapProblem>& problems, const Terminal& terminal)
{
    for (const MapProblem& problem : problems)
        terminal.out << problem.text << '\n';
}

} // namespace

int CheckCommand(const QStringList& arguments, const Terminal& terminal)
{
    const QCommandLineOption repair(
        QStringLiteral("repair"), CheckText(QT_TRANSLATE_NOOP("CheckCommand", "Mend what can be mended.")));
    CommandReader reader(CheckText(QT_TRANSLATE_NOOP(
        "CheckCommand",
        "Look for what is wrong with a map file: damage, rows that lead nowhere, data that are not there.\n"
        "Exit code: 0 nothing is wrong, 1 something is, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("check"));
    reader.RequireWords(1, 1);
    reader.Options().addOption(repair);
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"), CheckText(QT_TRANSLATE_NOOP("CheckCommand", "The map file.")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    const QString map = reader.Words().first();
    const auto problems = reader.IsSet(repair) ? RepairMap(map) : CheckMap(map);
    Tell(problems, terminal);
    if (problems.empty()) {
        terminal.out
            << CheckText(QT_TRANSLATE_NOOP("CheckCommand", "\"%1\" is sound.")).arg(QFileInfo(map).fileName())
            << '\n';
    }
    terminal.out.flush();
    return problems.empty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace Orvane
