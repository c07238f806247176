// SPDX-License-Identifier: MIT
#include "shell/ShownName.h"

namespace Orvane {

QString ShownName(const QString& name, qsizetype maximum)
{
    QString line = name.simplified();
    if (line.size() <= maximum)
        return line;
    QString beginning = line.left(maximum - 1);
    if (beginning.back().isHighSurrogate())
        beginning.chop(1);
    return beginning + QChar(0x2026);
}

QString MenuName(const QString& name)
{
    return ShownName(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace Orvane
