// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Orvane {

/// What a shape of a BlobGeometry is.
enum class ShapeKind : quint8 {
    Point, ///< one part of one vertex
    Line, ///< one part
    Area, ///< each part is a ring, those of all polygons one after the other
};

/// The geometry of one feature in a GeoPackage, in flat arrays and in the units of its table. One object is
/// used for many features, so that it allocates rarely.
///
///     BlobGeometry geometry;
///     if (geometry.Read(blob))
///         for (const BlobGeometry::Shape& shape : geometry.Shapes())
///             for (size_t part = shape.firstPart; part < shape.endPart; ++part)
///                 Draw(geometry.X(part), geometry.Y(part));
class BlobGeometry
{
public:
    /// A point, a line or an area. The members of a collection, and of several points or lines, are shapes of
    /// their own; several polygons are one shape.
    struct Shape {
        ShapeKind kind = ShapeKind::Point;
        size_t firstPart = 0;
        size_t endPart = 0; ///< one past the last part; firstPart for an empty shape
    };

    /// Reads a value of a geometry column, with its header; heights and measures are left out. Returns false
    /// for what is damaged, and for what only few files hold: curves, surfaces, extended types, and anything
    /// about which readers may differ. The content is then undefined.
    bool Read(std::span<const uint8_t> blob);

    /// In the order of the value.
    const std::vector<Shape>& Shapes() const { return m_shapes; }
    /// The first coordinates of a part's vertices: east. Valid until the next Read.
    std::span<const double> X(size_t part) const { return PartOf(m_x, part); }
    /// The second coordinates, as many as the first ones: north.
    std::span<const double> Y(size_t part) const { return PartOf(m_y, part); }

private:
    friend class BlobReader;

    std::span<const double> PartOf(const std::vector<double>& values, size_t part) const;

    std::vector<Shape> m_shapes;
    std::vector<size_t> m_partEnds;
    std::vector<double> m_x, m_y;
};

} // namespace Orvane
