// SPDX-License-Identifier: MIT
#include "kill/KillRun.h"
#include "kill/Writer.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace Orvane::Testing;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QLatin1String("--writer"))
        return RunWriter(arguments[3], arguments[2].toInt());
    const int kills = arguments.size() == 2 ? arguments[1].toInt() : 0;
    if (kills > 0)
        return KillRun().Run(kills);
    std::fprintf(stderr, "usage: kill_test KILLS\n");
    return 2;
}
