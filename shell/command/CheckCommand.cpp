// SPDX-License-Identifier: MIT
#include "shell/command/CheckCommand.h"

#include "shell/command/MapCheck.h"
#include "store/StorePlace.h"

#include <QCoreApplication>

#include <optional>

namespace Orvane {

namespace {

constexpr uint MostSeconds = 1'000'000;

QString CheckText(const char* text)
{
    return QCoreApplication::translate("CheckCommand", text);
}

// The seconds of the option; nothing for another text.
std::optional<CheckLimit> LimitOf(const QString& text)
{
    bool ok = false;
    const uint seconds = text.toUInt(&ok);
    if (!ok || seconds > MostSeconds)
        return std::nullopt;
    return seconds == 0 ? CheckLimit() : CheckLimit(std::chrono::seconds(seconds));
}

struct CheckOptions {
    QCommandLineOption repair{
        QStringLiteral("repair"),
        CheckText(QT_TRANSLATE_NOOP("CheckCommand", "Repair what can be repaired."))};
    QCommandLineOption timeLimit{
        QStringLiteral("time-limit"),
        CheckText(QT_TRANSLATE_NOOP(
            "CheckCommand",
            "End the check of the file after that time; 0 for no limit. The default is 600.")),
        QStringLiteral("SECONDS"), QString::number(std::chrono::seconds(LongestMapCheck).count())};
};

int Check(const QString& map, bool repairs, CheckLimit limit, const Terminal& terminal)
{
    QStringList replaced;
    const auto problems = repairs ? RepairMap(map, &replaced, limit) : CheckMap(map, limit);
    for (const QString& sentence : replaced)
        TellLine(terminal, sentence);
    for (const MapProblem& problem : problems)
        TellLine(terminal, problem.text);
    if (problems.empty()) {
        TellLine(
            terminal,
            CheckText(QT_TRANSLATE_NOOP("CheckCommand", "No problems were found in \"%1\"."))
                .arg(StorePlace::FileNameOf(map)));
    }
    return problems.empty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace

int CheckCommand(const QStringList& arguments, const Terminal& terminal)
{
    const CheckOptions options;
    CommandReader reader(CheckText(QT_TRANSLATE_NOOP(
        "CheckCommand",
        "Check a map for damage, invalid values, broken references and missing data.\nExit code: 0 no "
        "problems, 1 "
        "problems found, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("check"));
    reader.RequireWords(1, 1);
    reader.Options().addOptions({options.repair, options.timeLimit});
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"),
        CheckText(QT_TRANSLATE_NOOP("CheckCommand", "The map: a file, or a place on a server.")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    const auto limit = LimitOf(reader.Value(options.timeLimit));
    if (!limit) {
        return reader.Refuse(
            terminal,
            CheckText(QT_TRANSLATE_NOOP("CheckCommand", "--time-limit needs a whole number of seconds.")));
    }
    const QString map = reader.Words().first();
    if (reader.IsSet(options.repair) && !StorePlace::IsFile(map)) {
        return reader.Refuse(
            terminal,
            CheckText(QT_TRANSLATE_NOOP(
                "CheckCommand", "--repair is for map files; a map on a server is only checked.")));
    }
    return Check(map, reader.IsSet(options.repair), *limit, terminal);
}

} // namespace Orvane
