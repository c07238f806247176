// SPDX-License-Identifier: MIT
#include "shell/CommandLine.h"

#include <QCommandLineParser>

namespace Orvane {

CommandLine ReadCommandLine(const QCoreApplication& application)
{
    const QCommandLineOption trace(
        QStringLiteral("trace"),
        QCoreApplication::translate(
            "CommandLine", "Write each call between the map and the layer control to FILE."),
        QStringLiteral("FILE"));
    const QCommandLineOption control(
        QStringLiteral("layer-control"),
        QCoreApplication::translate("CommandLine", "Open the layer control at once."));
    const QCommandLineOption sample(
        QStringLiteral("make-sample"),
        QCoreApplication::translate("CommandLine", "Make a sample map in FILE, and open no window."),
        QStringLiteral("FILE"));
    const QCommandLineOption data(
        QStringLiteral("data"),
        QCoreApplication::translate(
            "CommandLine", "Make the sample map of the world data in FOLDER, if it has them."),
        QStringLiteral("FOLDER"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("CommandLine", "Orvane, a small desktop map program."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({trace, control, sample, data});
    parser.addPositionalArgument(
        QStringLiteral("MAP"), QCoreApplication::translate("CommandLine", "The map file to open."),
        QStringLiteral("[MAP]"));
    parser.process(application);
    return {
        parser.positionalArguments().value(0), parser.value(trace), parser.isSet(control),
        parser.value(sample), parser.value(data)};
}

} // namespace Orvane
