// SPDX-License-Identifier: MIT
#include "mapkit/drawing/ReprojectedView.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/GroundScale.h"
#include "mapkit/coordinates/SystemReference.h"

#include <cmath>
#include <memory>

namespace Orvane {

namespace {

using Transformation = std::unique_ptr<OGRCoordinateTransformation>;

std::optional<QPointF> Moved(QPointF point, const Transformation& transformation)
{
    double x = point.x();
    double y = point.y();
    if (!transformation || !transformation->Transform(1, &x, &y) || !std::isfinite(x) || !std::isfinite(y))
        return std::nullopt;
    return QPointF(x, y);
}

// Outside its valid area a projection gives positions that lead back to another place.
bool LeadsBack(QPointF there, const MapView& view, const Transformation& back)
{
    const std::optional<QPointF> again = Moved(there, back);
    if (!again)
        return false;
    const QPointF pixels = (*again - view.Centre()) / view.UnitsPerPixel();
    return std::hypot(pixels.x(), pixels.y()) < 1;
}

} // namespace

std::optional<MapView> ReprojectedView(const MapView& view, const QString& from, const QString& to)
{
    const GdalErrors quiet;
    const OGRSpatialReference source = ReferenceOf(from);
    const OGRSpatialReference target = ReferenceOf(to);
    if (source.IsEmpty() || target.IsEmpty())
        return std::nullopt;
    const Transformation forth(OGRCreateCoordinateTransformation(&source, &target));
    const std::optional<QPointF> centre = Moved(view.Centre(), forth);
    const Transformation back(forth ? forth->GetInverse() : nullptr);
    if (!centre || !LeadsBack(*centre, view, back))
        return std::nullopt;
    const double metresPerPixel = view.UnitsPerPixel() * GroundMetresPerUnit(from, view.Centre());
    return MapView(*centre, metresPerPixel / GroundMetresPerUnit(to, *centre), view.Size());
}

} // namespace Orvane
