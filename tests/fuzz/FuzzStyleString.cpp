// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "ovctrls/StyleStringParser.h"
#include "ovctrls/StyleStringRenderer.h"

#include <cmath>
#include <variant>

namespace Orvane::Testing {

namespace {

void RequireNear(const Drawing& drawing)
{
    constexpr double farthest = 32767;
    Require(drawing.penWidth >= 0 && drawing.penWidth <= farthest, "a pen has a usable width");
    for (const Figure& figure : drawing.figures) {
        for (const QPointF& point : figure.points) {
            const bool isNear = std::abs(point.x()) <= farthest && std::abs(point.y()) <= farthest;
            Require(isNear, "coordinates are clamped");
        }
    }
}

void ReadItem(const QString& item, const QString& prefix)
{
    for (const StyleElement& element : ParseStyleString(item, prefix)) {
        if (const auto* drawing = std::get_if<Drawing>(&element))
            RequireNear(*drawing);
    }
    const StyleStringRenderer renderer(prefix);
    renderer.IsUserDrawn(item);
    Require(renderer.PlainText(item).size() <= item.size(), "the words of an item are part of it");
}

} // namespace

int FuzzStyleString(const uint8_t* data, size_t size)
{
    const QString item = TextIn(data, size);
    for (const QString& prefix : {QString(), QStringLiteral("@"), item.left(2)})
        ReadItem(item, prefix);
    return 0;
}

} // namespace Orvane::Testing
