// SPDX-License-Identifier: MIT
#include "benchmarks/Program.h"
#include "benchmarks/map/MapData.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdlib>
#include <cstring>

/// orvane_map_benchmarks [ARGUMENTS]: measures, as RunMeasurements says. The windows find no settings, and
/// leave none. orvane_map_benchmarks --make FILE LAYERS: only writes the data of the map with so many layers,
/// for another program that is measured with them.
int main(int argc, char** argv)
{
    if (argc == 4 && !std::strcmp(argv[1], "--make")) {
        Orvane::Benchmarks::MapData::WriteFile(QString::fromLocal8Bit(argv[2]), std::atoi(argv[3]));
        return 0;
    }
    const QTemporaryDir settings;
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    return Orvane::Benchmarks::RunMeasurements(argc, argv);
}
