// SPDX-License-Identifier: MIT
#include "benchmarks/Program.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

// The windows must find no settings, and leave none.
int main(int argc, char** argv)
{
    const QTemporaryDir settings;
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    return Orvane::Benchmarks::RunMeasurements(argc, argv);
}
