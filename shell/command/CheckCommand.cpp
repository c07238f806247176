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
        QStringLiteral("repair"),
        CheckText(QT_TRANSLATE_NOOP("CheckCommand", "Repair what can be repaired.")));
    CommandReader reader(CheckText(QT_TRANSLATE_NOOP(
        "CheckCommand",
        "Check a map file for damage, invalid values, broken references and missing data.\nExit code: 0 no "
        "problems, 1 "
        "problems found, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("check"));
    reader.RequireWords(1, 1);
    reader.Options().addOption(repair);
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"), CheckText(QT_TRANSLATE_NOOP("CheckCommand", "The map file.")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    const QString map = reader.Words().first();
    QStringList replaced;
    const auto problems = reader.IsSet(repair) ? RepairMap(map, &replaced) : CheckMap(map);
    for (const QString& sentence : replaced)
        terminal.out << sentence << '\n';
    Tell(problems, terminal);
    if (problems.empty()) {
        terminal.out << CheckText(QT_TRANSLATE_NOOP("CheckCommand", "No problems were found in \"%1\"."))
                            .arg(QFileInfo(map).fileName())
                     << '\n';
    }
    terminal.out.flush();
    return problems.empty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace Orvane
