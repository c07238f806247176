// SPDX-License-Identifier: MIT
#include "sweep/Sweep.h"

#include <QApplication>
#include <QStandardPaths>

#include <cstdio>

namespace {

// The offscreen platform says this whenever a window is raised or resized.
void PrintUnlessNoise(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.contains(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "Qt: %s\n", qPrintable(message));
}

int RunSweep(const Orvane::Testing::SweepOptions& options)
{
    try {
        Orvane::Testing::Sweep sweep(options, Orvane::Testing::SweepCommands());
        if (!options.isList)
            return sweep.Run();
        sweep.List();
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sweep: %s\n", error.what());
        return 1;
    }
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(PrintUnlessNoise);
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    if (const auto options = Orvane::Testing::SweepOptions::Read(QApplication::arguments()))
        return RunSweep(*options);
    std::fprintf(stderr, "usage: sweep [--every K [--from N]] [--list] [PART OF A NAME]\n");
    return 2;
}
