// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "mapkit/geopackage/BlobGeometry.h"

namespace Orvane::Testing {

int FuzzGeometryBlob(const uint8_t* data, size_t size)
{
    BlobGeometry geometry;
    if (!geometry.Read({data, size}))
        return 0;
    size_t part = 0;
    size_t vertices = 0;
    for (const BlobGeometry::Shape& shape : geometry.Shapes()) {
        Require(shape.firstPart == part && shape.endPart >= part, "parts follow one another");
        for (; part < shape.endPart; ++part) {
            Require(geometry.X(part).size() == geometry.Y(part).size(), "a vertex has two coordinates");
            vertices += geometry.X(part).size();
        }
        const size_t count = shape.endPart - shape.firstPart;
        Require(shape.kind == ShapeKind::Area || count <= 1, "a point or a line is one part");
    }
    Require(vertices * 2 * sizeof(double) <= size, "a value holds its vertices");
    BlobGeometry again;
    Require(
        again.Read({data, size}) && again.Shapes().size() == geometry.Shapes().size(),
        "a value stays the same");
    Require(size == 0 || !again.Read({data, size - 1}), "a value that is cut is refused");
    return 0;
}

} // namespace Orvane::Testing
