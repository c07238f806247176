// SPDX-License-Identifier: MIT
#include "component/model/ListedName.h"

namespace Orvane {

namespace {

QString ShortenMarker(const QString& name, QLatin1String marker, QLatin1String shortened)
{
    const qsizetype position = name.indexOf(marker, 0, Qt::CaseInsensitive);
    if (position < 0)
        return name;
    return name.mid(position + marker.size()) + shortened + name.left(position);
}

} // namespace

QString DecorateLayerName(const QString& name)
{
    if (!name.contains(QLatin1Char('(')))
        return name;
    const QString first = ShortenMarker(name, QLatin1String("(Obscured)"), QLatin1String("(OBS)"));
    return ShortenMarker(first, QLatin1String("(Suppressed)"), QLatin1String("(SUP)"));
}

} // namespace Orvane
