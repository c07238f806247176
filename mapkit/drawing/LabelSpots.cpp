// SPDX-License-Identifier: MIT
#include "mapkit/drawing/LabelSpots.h"

#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace Orvane::LabelSpots {

namespace {

constexpr double SymbolGap = 3; // pixels
constexpr double LineGap = 1; // pixels
constexpr double StraightEnough = 0.94; // smallest ratio of straight distance to length along the line
constexpr double WidePart = 0.8; // of the text's height; on wider lines the text is on the line
constexpr std::array PlacesAlong{0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8};
constexpr int Rows = 15;
constexpr double NeededPart = 0.95; // of the text's width

// The distance of each vertex along the line.
std::vector<double> Mileage(const QPolygonF& line)
{
    std::vector<double> mileage{0};
    for (qsizetype i = 1; i < line.size(); ++i)
        mileage.push_back(mileage.back() + QLineF(line[i - 1], line[i]).length());
    return mileage;
}

QPointF PointAt(const QPolygonF& line, const std::vector<double>& mileage, double distance)
{
    const auto behind = std::upper_bound(mileage.begin() + 1, mileage.end() - 1, distance);
    const auto i = behind - mileage.begin();
    const double length = mileage[size_t(i)] - mileage[size_t(i) - 1];
    const double part = length > 0 ? (distance - mileage[size_t(i) - 1]) / length : 0;
    return line[i - 1] + (line[i] - line[i - 1]) * part;
}

// lift: the distance of the text's middle above the line.
std::optional<LabelSpot> Across(QPointF from, QPointF to, double textWidth, double lift)
{
    if (to.x() < from.x())
        std::swap(from, to);
    const QLineF chord(from, to);
    if (chord.length() < StraightEnough * textWidth)
        return std::nullopt;
    const QPointF up = QPointF(chord.dy(), -chord.dx()) / chord.length();
    const double angle = std::atan2(chord.dy(), chord.dx()) * 180 / M_PI;
    return LabelSpot{chord.center() + up * lift, angle};
}

// The parts of the row at that height that are inside, as ordered pairs of left and right ends.
std::vector<double> Crossings(std::span<const QPolygonF> rings, double y)
{
    std::vector<double> crossings;
    for (const QPolygonF& ring : rings) {
        for (qsizetype i = 0; i < ring.size(); ++i) {
            const QPointF from = ring[i == 0 ? ring.size() - 1 : i - 1];
            const QPointF to = ring[i];
            if ((from.y() <= y) != (to.y() <= y))
                crossings.push_back(from.x() + (to.x() - from.x()) * (y - from.y()) / (to.y() - from.y()));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

struct FreeSpan {
    double left = 0;
    double right = 0;
    double Width() const { return right - left; }
};

// The widest span that is inside at all of these heights, which is exact enough for a text.
FreeSpan WidestInside(std::span<const QPolygonF> rings, const std::array<double, 3>& heights)
{
    std::vector<FreeSpan> inside{{-1e9, 1e9}};
    for (const double y : heights) {
        const std::vector<double> crossings = Crossings(rings, y);
        std::vector<FreeSpan> both;
        for (size_t i = 1; i < crossings.size(); i += 2) {
            for (const FreeSpan& gap : inside) {
                const FreeSpan shared{
                    std::max(gap.left, crossings[i - 1]), std::min(gap.right, crossings[i])};
                if (shared.Width() > 0)
                    both.push_back(shared);
            }
        }
        inside = std::move(both);
    }
    FreeSpan widest;
    for (const FreeSpan& gap : inside)
        widest = gap.Width() > widest.Width() ? gap : widest;
    return widest;
}

} // namespace

std::vector<LabelSpot> AroundPoint(QPointF point, double radius, QSizeF size)
{
    const double across = radius + SymbolGap + size.width() / 2;
    const double along = radius + SymbolGap / 2 + size.height() / 2;
    return {
        {point + QPointF(across, 0)},
        {point - QPointF(across, 0)},
        {point - QPointF(0, along)},
        {point + QPointF(0, along)}};
}

std::vector<LabelSpot> AlongLine(const QPolygonF& line, double width, QSizeF size)
{
    const std::vector<double> mileage = Mileage(line);
    const double length = mileage.back();
    const bool isWide = width >= WidePart * size.height();
    const double lift = isWide ? 0 : (size.height() + width) / 2 + LineGap;
    std::vector<LabelSpot> spots;
    for (const double place : PlacesAlong) {
        const double from = place * length - size.width() / 2;
        const double to = from + size.width();
        if (line.size() < 2 || from < 0 || to > length)
            continue;
        const auto spot
            = Across(PointAt(line, mileage, from), PointAt(line, mileage, to), size.width(), lift);
        if (spot)
            spots.push_back(*spot);
    }
    return spots;
}

std::vector<LabelSpot> InsideArea(std::span<const QPolygonF> rings, QSizeF size)
{
    QRectF bounds;
    for (const QPolygonF& ring : rings)
        bounds |= ring.boundingRect();
    std::vector<std::pair<double, LabelSpot>> scored;
    for (int row = 0; row < Rows; ++row) {
        const double y = bounds.top() + bounds.height() * (row + 0.5) / Rows;
        const FreeSpan gap = WidestInside(rings, {y - size.height() / 2, y, y + size.height() / 2});
        if (gap.Width() < NeededPart * size.width())
            continue;
        // room beyond twice the text width does not count; a central position matters more
        const double room = std::min(gap.Width() / size.width(), 2.0);
        const double score = room - 2 * std::abs(y - bounds.center().y()) / bounds.height();
        scored.emplace_back(score, LabelSpot{QPointF((gap.left + gap.right) / 2, y)});
    }
    std::stable_sort(scored.begin(), scored.end(), [](const auto& one, const auto& other) {
        return one.first > other.first;
    });
    std::vector<LabelSpot> spots;
    spots.reserve(scored.size());
    for (const auto& [score, spot] : scored)
        spots.push_back(spot);
    return spots;
}

} // namespace Orvane::LabelSpots
