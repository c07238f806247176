// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace Orvane {

/// What the command line asks for.
struct CommandLine {
    QString map; ///< file to open; empty for the last one
    QString traceFile; ///< empty for no trace
    bool layerControl = false;
    QString sampleMap; ///< file to make instead of opening a window; empty for none
    QString dataFolder;
};

/// Reads the application's arguments. Ends the process itself, with a text, for --help, --version and
/// arguments that it does not know.
CommandLine ReadCommandLine(const QCoreApplication& application);

} // namespace Orvane
