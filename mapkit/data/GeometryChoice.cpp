// SPDX-License-Identifier: MIT
#include "mapkit/data/GeometryChoice.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

// In the order of FeatureKind.
constexpr std::array<const char*, 3> KindNames = {"point", "line", "area"};

void PutText(QJsonObject& object, const char* name, const QString& text)
{
    if (!text.isEmpty())
        object[QLatin1String(name)] = text;
}

std::vector<FeatureKind> KindsIn(const QJsonArray& names)
{
    std::vector<FeatureKind> kinds;
    for (size_t i = 0; i < KindNames.size(); ++i) {
        if (names.contains(QLatin1String(KindNames[i])))
            kinds.push_back(FeatureKind(i));
    }
    return kinds;
}

} // namespace

bool GeometryChoice::Takes(FeatureKind kind) const
{
    return kinds.empty() || std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

QString GeometryChoice::ToText() const
{
    QJsonObject object;
    PutText(object, "x", columns.x);
    PutText(object, "y", columns.y);
    PutText(object, "wkt", columns.wkt);
    QJsonArray names;
    for (const FeatureKind kind : kinds)
        names.append(QLatin1String(KindNames.at(size_t(kind))));
    if (!names.isEmpty())
        object[QLatin1String("kinds")] = names;
    if (object.isEmpty())
        return {};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

GeometryChoice GeometryChoice::FromText(const QString& text)
{
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    const auto textOf = [&](const char* name) { return object[QLatin1String(name)].toString(); };
    GeometryChoice choice;
    choice.columns = {textOf("x"), textOf("y"), textOf("wkt")};
    choice.kinds = KindsIn(object[QLatin1String("kinds")].toArray());
    return choice;
}

} // namespace Orvane
