// SPDX-License-Identifier: MIT
#include "shell/command/CommandLine.h"

#include "shell/command/CheckCommand.h"
#include "shell/command/CopyCommand.h"
#include "shell/command/ExportCommand.h"
#include "shell/command/ImportCommand.h"
#include "shell/command/ListCommand.h"
#include "shell/command/ShareCommand.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>

namespace Orvane {

namespace {

// Runs one command. An error is written to the terminal, and the command then fails.
template <typename Command> int Told(const Terminal& terminal, Command&& command)
{
    try {
        return command();
    } catch (const std::exception& error) {
        TellError(terminal, QString::fromUtf8(error.what()));
        return ExitCode::Problems;
    }
}

QString CommandText(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

QString HelpText()
{
    return CommandText(QT_TRANSLATE_NOOP(
        "CommandLine",
        "Orvane, a small desktop map program.\n\nThese commands run without a window; each has its own "
        "--help:\n  orvane MAP --export FILE     draw a map as PDF, SVG or PNG\n  orvane import DATA --to "
        "MAP  add data to a map\n  orvane check MAP             check a map for problems\n  orvane "
        "list MAP              list the layers of a map\n  orvane copy MAP NEW          copy a map, also to "
        "or "
        "from a server\n  orvane share PLACE           choose who may use a map on a server"));
}

bool IsExport(const QStringList& arguments)
{
    return std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        return argument == QLatin1String("--export") || argument.startsWith(QLatin1String("--export="));
    });
}

// The options of the program itself.
struct WindowOptions {
    QCommandLineOption version{
        {QStringLiteral("v"), QStringLiteral("version")},
        CommandText(QT_TRANSLATE_NOOP("CommandLine", "Show the version."))};
    QCommandLineOption trace{
        QStringLiteral("trace"),
        CommandText(QT_TRANSLATE_NOOP(
            "CommandLine", "Write each call between the map and the layer control to FILE.")),
        QStringLiteral("FILE")};
    QCommandLineOption control{
        QStringLiteral("layer-control"),
        CommandText(QT_TRANSLATE_NOOP("CommandLine", "Open the layer control at startup."))};
};

int TellVersion(const Terminal& terminal)
{
    terminal.out << QCoreApplication::applicationName() << ' ' << QCoreApplication::applicationVersion()
                 << '\n';
    terminal.out.flush();
    return ExitCode::Done;
}

std::variant<int, WindowRequest> ReadWindowRequest(const QStringList& arguments, const Terminal& terminal)
{
    const WindowOptions options;
    CommandReader reader(HelpText());
    reader.Options().addOptions({options.version, options.trace, options.control});
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"),
        CommandText(QT_TRANSLATE_NOOP("CommandLine", "The map to open: a file, or a place on a server.")),
        QStringLiteral("[MAP]"));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    if (reader.IsSet(options.version))
        return TellVersion(terminal);
    return WindowRequest{reader.Words().value(0), reader.Value(options.trace), reader.IsSet(options.control)};
}

} // namespace

bool NeedsNoWindow(const QStringList& arguments)
{
    static const QStringList commands{
        QStringLiteral("import"), QStringLiteral("check"), QStringLiteral("list"), QStringLiteral("copy"),
        QStringLiteral("share")};
    static const QStringList answers{
        QStringLiteral("-h"), QStringLiteral("--help"), QStringLiteral("-v"), QStringLiteral("--version")};
    return commands.contains(arguments.value(1)) || IsExport(arguments)
        || std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
               return answers.contains(argument.section(QLatin1Char('='), 0, 0));
           });
}

std::variant<int, WindowRequest> RunCommandLine(const QStringList& arguments, const Terminal& terminal)
{
    if (arguments.value(1) == QLatin1String("import"))
        return Told(terminal, [&] { return ImportCommand(arguments, terminal); });
    if (arguments.value(1) == QLatin1String("check"))
        return Told(terminal, [&] { return CheckCommand(arguments, terminal); });
    if (arguments.value(1) == QLatin1String("list"))
        return Told(terminal, [&] { return ListCommand(arguments, terminal); });
    if (arguments.value(1) == QLatin1String("copy"))
        return Told(terminal, [&] { return CopyCommand(arguments, terminal); });
    if (arguments.value(1) == QLatin1String("share"))
        return Told(terminal, [&] { return ShareCommand(arguments, terminal); });
    if (IsExport(arguments))
        return Told(terminal, [&] { return ExportCommand(arguments, terminal); });
    return ReadWindowRequest(arguments, terminal);
}

} // namespace Orvane
