// SPDX-License-Identifier: MIT
#include "sweep/Sweep.h"

#include <QApplication>
#include <QStandardPaths>

#include <cstdio>

namespace {

int RunSweep(const Orvane::Testing::SweepOptions& options)
{
    try {
        Orvane::Testing::Sweep sweep(options);
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
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    if (const auto options = Orvane::Testing::SweepOptions::Read(QApplication::arguments()))
        return RunSweep(*options);
    std::fprintf(stderr, "usage: sweep [--every K [--from N]] [--list] [PART OF A NAME]\n");
    return 2;
}
