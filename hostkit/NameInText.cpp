// SPDX-License-Identifier: MIT
#include "hostkit/NameInText.h"

namespace Orvane {

QString NameInText(const QString& name, qsizetype longest)
{
    const QString line = name.simplified();
    if (line.size() <= longest)
        return line;
    QString beginning = line.left(longest - 1);
    if (beginning.endsWith(QLatin1Char(' ')) || beginning.back().isHighSurrogate())
        beginning.chop(1);
    return beginning + QChar(0x2026);
}

} // namespace Orvane
