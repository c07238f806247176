// SPDX-License-Identifier: MIT
#include "mapkit/geopackage/BlobGeometry.h"

#include <QtEndian>

#include <array>
#include <bit>
#include <cmath>
#include <optional>

namespace Orvane {

namespace {

// The types that the standard of simple features numbers so.
enum WkbType : quint32 {
    WkbPoint = 1,
    WkbLine = 2,
    WkbPolygon = 3,
    WkbPoints = 4,
    WkbLines = 5,
    WkbPolygons = 6,
    WkbCollection = 7,
};

constexpr quint32 TypesPerDimension = 1000; // 1001 is a point with a height
constexpr std::array<size_t, 4> ValuesOfVertex = {2, 3, 3, 4}; // plain, with height, with measure, with both
constexpr size_t PlainHeader = 8; // bytes
constexpr std::array<size_t, 5> EnvelopeBytes = {0, 32, 48, 48, 64};
constexpr size_t GeometryHeader = 5; // bytes: order and type
constexpr size_t RingHeader = 4; // bytes: how many vertices
constexpr int MostNesting = 8; // of collections

// The type of a geometry, taken apart.
struct WkbHeader {
    bool isLittleEndian = true;
    quint32 type = 0; ///< a WkbType
    quint32 dimension = 0; ///< an index into ValuesOfVertex
};

} // namespace

// Reads the bytes of one value from front to back. Every length is compared with what is left before it is
// used.
class BlobReader
{
public:
    BlobReader(std::span<const uint8_t> bytes, BlobGeometry& target) : m_bytes(bytes), m_target(target) { }

    bool ReadAll()
    {
        m_target.m_shapes.clear();
        m_target.m_partEnds.clear();
        m_target.m_x.clear();
        m_target.m_y.clear();
        return SkipHeader() && ReadGeometry(0, {}) && m_bytes.empty();
    }

private:
    // "GP", version, flags, number of the system, the box around the geometry.
    bool SkipHeader()
    {
        if (m_bytes.size() < PlainHeader || m_bytes[0] != 'G' || m_bytes[1] != 'P' || m_bytes[2] != 0)
            return false;
        const uint8_t flags = m_bytes[3];
        const size_t envelope = (flags >> 1) & 7;
        const bool isUsual = (flags >> 5) == 0; // no extended type, nothing reserved
        if (!isUsual || envelope >= EnvelopeBytes.size())
            return false;
        return Skip(PlainHeader + EnvelopeBytes[envelope]);
    }

    bool Skip(size_t count)
    {
        if (m_bytes.size() < count)
            return false;
        m_bytes = m_bytes.subspan(count);
        return true;
    }

    quint32 NumberAt(size_t place, bool isLittleEndian) const
    {
        const uint8_t* bytes = m_bytes.data() + place;
        return isLittleEndian ? qFromLittleEndian<quint32>(bytes) : qFromBigEndian<quint32>(bytes);
    }

    double CoordinateAt(size_t place, bool isLittleEndian) const
    {
        const uint8_t* bytes = m_bytes.data() + place;
        return std::bit_cast<double>(
            isLittleEndian ? qFromLittleEndian<quint64>(bytes) : qFromBigEndian<quint64>(bytes));
    }

    std::optional<WkbHeader> ReadHeader()
    {
        if (m_bytes.size() < GeometryHeader || m_bytes[0] > 1)
            return std::nullopt;
        WkbHeader header;
        header.isLittleEndian = m_bytes[0] == 1;
        const auto type = NumberAt(1, header.isLittleEndian);
        header.type = type % TypesPerDimension;
        header.dimension = type / TypesPerDimension;
        if (header.dimension >= ValuesOfVertex.size())
            return std::nullopt;
        m_bytes = m_bytes.subspan(GeometryHeader);
        return header;
    }

    // smallest: bytes that each of the things has at least.
    std::optional<quint32> ReadCount(const WkbHeader& header, size_t smallest)
    {
        if (m_bytes.size() < sizeof(quint32))
            return std::nullopt;
        const auto count = NumberAt(0, header.isLittleEndian);
        m_bytes = m_bytes.subspan(sizeof(quint32));
        return m_bytes.size() / smallest >= count ? std::optional(count) : std::nullopt;
    }

    // parent: of the geometry that this one is a member of; its type is 0 if there is none.
    bool ReadGeometry(int nesting, const WkbHeader& parent)
    {
        const std::optional<WkbHeader> header = ReadHeader();
        if (!header || (parent.type != 0 && header->dimension != parent.dimension))
            return false;
        if (parent.type != 0 && parent.type != WkbCollection && header->type != parent.type - WkbPoints + 1)
            return false;
        switch (header->type) {
        case WkbPoint:
            return ReadPoint(*header);
        case WkbLine:
            return ReadShape(ShapeKind::Line, [&] { return ReadVertices(*header); });
        case WkbPolygon:
            return parent.type == WkbPolygons
                ? ReadRings(*header)
                : ReadShape(ShapeKind::Area, [&] { return ReadRings(*header); });
        case WkbPolygons:
            return ReadShape(ShapeKind::Area, [&] { return ReadMembers(*header, nesting); });
        case WkbPoints:
        case WkbLines:
        case WkbCollection:
            return ReadMembers(*header, nesting);
        default:
            return false;
        }
    }

    bool ReadMembers(const WkbHeader& header, int nesting)
    {
        const auto count = ReadCount(header, GeometryHeader + RingHeader);
        if (!count || nesting >= MostNesting)
            return false;
        for (quint32 i = 0; i < *count; ++i) {
            if (!ReadGeometry(nesting + 1, header))
                return false;
        }
        return true;
    }

    template <typename Reading> bool ReadShape(ShapeKind kind, const Reading& read)
    {
        const size_t first = m_target.m_partEnds.size();
        if (!read())
            return false;
        m_target.m_shapes.push_back({kind, first, m_target.m_partEnds.size()});
        return true;
    }

    // An empty one has no numbers as coordinates.
    bool ReadPoint(const WkbHeader& header)
    {
        const size_t size = ValuesOfVertex[header.dimension] * sizeof(double);
        if (m_bytes.size() < size)
            return false;
        const auto x = CoordinateAt(0, header.isLittleEndian);
        const auto y = CoordinateAt(sizeof(double), header.isLittleEndian);
        m_bytes = m_bytes.subspan(size);
        return ReadShape(ShapeKind::Point, [&] {
            if (std::isnan(x) && std::isnan(y))
                return true;
            m_target.m_x.push_back(x);
            m_target.m_y.push_back(y);
            m_target.m_partEnds.push_back(m_target.m_x.size());
            return true;
        });
    }

    bool ReadRings(const WkbHeader& header)
    {
        const auto count = ReadCount(header, RingHeader);
        for (quint32 i = 0; count && i < *count; ++i) {
            if (!ReadVertices(header))
                return false;
        }
        return count.has_value();
    }

    bool ReadVertices(const WkbHeader& header)
    {
        const size_t size = ValuesOfVertex[header.dimension] * sizeof(double);
        const auto count = ReadCount(header, size);
        if (!count)
            return false;
        const size_t first = m_target.m_x.size();
        m_target.m_x.resize(first + *count);
        m_target.m_y.resize(first + *count);
        for (size_t i = 0; i < *count; ++i) {
            m_target.m_x[first + i] = CoordinateAt(i * size, header.isLittleEndian);
            m_target.m_y[first + i] = CoordinateAt(i * size + sizeof(double), header.isLittleEndian);
        }
        m_target.m_partEnds.push_back(m_target.m_x.size());
        m_bytes = m_bytes.subspan(*count * size);
        return true;
    }

    std::span<const uint8_t> m_bytes; // what is left
    BlobGeometry& m_target;
};

bool BlobGeometry::Read(std::span<const uint8_t> blob)
{
    return BlobReader(blob, *this).ReadAll();
}

std::span<const double> BlobGeometry::PartOf(const std::vector<double>& values, size_t part) const
{
    const size_t begin = part == 0 ? 0 : m_partEnds[part - 1];
    return {values.data() + begin, m_partEnds[part] - begin};
}

} // namespace Orvane
