// SPDX-License-Identifier: MIT
#include "mapkit/drawing/Clipping.h"

#include <QLineF>

namespace Orvane {

namespace {

// Narrows [begin, end] of a segment to where start + t * step >= 0.
bool Narrow(double start, double step, double& begin, double& end)
{
    if (step == 0)
        return start >= 0;
    const double crossing = -start / step;
    if (step > 0)
        begin = qMax(begin, crossing);
    else
        end = qMin(end, crossing);
    return begin <= end;
}

// One edge of the clipping rectangle; distance is positive inside.
template <typename Distance> QPolygonF ClipToEdge(const QPolygonF& ring, Distance distance)
{
    QPolygonF result;
    result.reserve(ring.size() + 4);
    for (qsizetype i = 0; i < ring.size(); ++i) {
        const QPointF from = ring[i == 0 ? ring.size() - 1 : i - 1];
        const QPointF to = ring[i];
        const double before = distance(from);
        const double after = distance(to);
        if ((before < 0) != (after < 0))
            result << from + (to - from) * (before / (before - after));
        if (after >= 0)
            result << to;
    }
    return result;
}

} // namespace

bool ClipSegment(QPointF& from, QPointF& to, const QRectF& area)
{
    const QPointF step = to - from;
    double begin = 0;
    double end = 1;
    const bool inside = Narrow(from.x() - area.left(), step.x(), begin, end)
        && Narrow(area.right() - from.x(), -step.x(), begin, end)
        && Narrow(from.y() - area.top(), step.y(), begin, end)
        && Narrow(area.bottom() - from.y(), -step.y(), begin, end);
    if (!inside)
        return false;
    const QPointF start = from;
    from = begin > 0 ? start + step * begin : start;
    to = end < 1 ? start + step * end : to;
    return true;
}

std::vector<ClippedRun> ClipLine(const QPolygonF& line, const QRectF& area)
{
    std::vector<ClippedRun> runs;
    double length = 0;
    bool joins = false; // the next segment continues the last run
    for (qsizetype i = 1; i < line.size(); ++i) {
        QPointF from = line[i - 1];
        QPointF to = line[i];
        if (ClipSegment(from, to, area)) {
            if (!joins)
                runs.push_back({{from}, length + QLineF(line[i - 1], from).length()});
            runs.back().points << to;
        }
        joins = to == line[i] && !runs.empty() && runs.back().points.last() == to;
        length += QLineF(line[i - 1], line[i]).length();
    }
    return runs;
}

QPolygonF ClipRing(const QPolygonF& ring, const QRectF& area)
{
    QPolygonF result = ClipToEdge(ring, [&](QPointF p) { return p.x() - area.left(); });
    result = ClipToEdge(result, [&](QPointF p) { return area.right() - p.x(); });
    result = ClipToEdge(result, [&](QPointF p) { return p.y() - area.top(); });
    return ClipToEdge(result, [&](QPointF p) { return area.bottom() - p.y(); });
}

} // namespace Orvane
