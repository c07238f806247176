// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/MapEdges.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/SystemReference.h"

#include <QSet>

#include <cpl_conv.h>
#include <memory>

namespace Orvane {

namespace {

constexpr double MercatorLatitude = 85.06; // where the map of the whole earth is a square

// The projections that cut the earth open along one meridian, by PROJ's names.
bool HasEdges(const QString& projection)
{
    static const QSet<QString> names
        = {"aea",      "cea",     "eck1",  "eck2",   "eck3",  "eck4", "eck5",    "eck6",  "eqc",
           "eqdc",     "eqearth", "gall",  "hatano", "kav7",  "lcc",  "merc",    "mill",  "moll",
           "natearth", "poly",    "robin", "sinu",   "vandg", "wag4", "webmerc", "wintri"};
    return names.contains(projection);
}

// The value of a parameter such as +lon_0=150; empty if there is none.
QString ValueOf(const QString& text, const QString& name)
{
    const QString start = QLatin1Char('+') + name + QLatin1Char('=');
    for (const QString& part : text.split(QLatin1Char(' '))) {
        if (part.startsWith(start))
            return part.mid(start.size());
    }
    return {};
}

QString ProjText(const OGRSpatialReference& system)
{
    char* text = nullptr;
    system.exportToProj4(&text);
    const std::unique_ptr<char, decltype(&VSIFree)> owned(text, VSIFree);
    return QString::fromUtf8(text);
}

} // namespace

MapEdges EdgesOf(const QString& system)
{
    const GdalErrors quiet;
    const OGRSpatialReference known = ReferenceOf(system);
    if (known.IsEmpty() || !known.IsProjected())
        return {};
    const QString text = ProjText(known);
    const QString projection = ValueOf(text, QStringLiteral("proj"));
    MapEdges edges;
    if (HasEdges(projection) && ValueOf(text, QStringLiteral("pm")).isEmpty())
        edges.middle = ValueOf(text, QStringLiteral("lon_0")).toDouble();
    if (projection.endsWith(QStringLiteral("merc")) && HasEdges(projection))
        edges.mostLatitude = MercatorLatitude;
    return edges;
}

} // namespace Orvane
