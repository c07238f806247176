// SPDX-License-Identifier: MIT
#include "mapkit/geopackage/BlobGeometry.h"

#include <QByteArray>

#include <gmock/gmock.h>

namespace Orvane {

using testing::ElementsAre;

namespace {

const QByteArray Header = "4750000000000000"; // without an envelope
const QByteArray One = "000000000000F03F"; // as a double
const QByteArray Two = "0000000000000040";
const QByteArray Three = "0000000000000840";
const QByteArray NaN = "000000000000F87F";

class BlobGeometryTest : public testing::Test
{
protected:
    bool Read(const QByteArray& hex)
    {
        const QByteArray bytes = QByteArray::fromHex(hex);
        return m_geometry.Read({reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size())});
    }

    // A geometry of that type, little-endian.
    static QByteArray Wkb(const QByteArray& type, const QByteArray& rest) { return "01" + type + rest; }

    BlobGeometry m_geometry;
};

const QByteArray PointType = "01000000";
const QByteArray LineType = "02000000";
const QByteArray PolygonType = "03000000";
const QByteArray PointsType = "04000000";
const QByteArray PolygonsType = "06000000";
const QByteArray CollectionType = "07000000";
const QByteArray CountOne = "01000000";
const QByteArray CountTwo = "02000000";

} // namespace

TEST_F(BlobGeometryTest, APointHasOneVertex)
{
    ASSERT_TRUE(Read(Header + Wkb(PointType, One + Two)));
    ASSERT_EQ(m_geometry.Shapes().size(), 1u);
    EXPECT_EQ(m_geometry.Shapes()[0].kind, ShapeKind::Point);
    EXPECT_THAT(m_geometry.X(0), ElementsAre(1));
    EXPECT_THAT(m_geometry.Y(0), ElementsAre(2));
}

TEST_F(BlobGeometryTest, AnEmptyPointIsAShapeWithoutParts)
{
    ASSERT_TRUE(Read(Header + Wkb(PointType, NaN + NaN)));
    ASSERT_EQ(m_geometry.Shapes().size(), 1u);
    EXPECT_EQ(m_geometry.Shapes()[0].firstPart, m_geometry.Shapes()[0].endPart);
}

TEST_F(BlobGeometryTest, BytesMayBeInEitherOrder)
{
    ASSERT_TRUE(Read(Header + "0000000002000000013FF00000000000004000000000000000"));
    EXPECT_EQ(m_geometry.Shapes()[0].kind, ShapeKind::Line);
    EXPECT_THAT(m_geometry.X(0), ElementsAre(1));
    EXPECT_THAT(m_geometry.Y(0), ElementsAre(2));
}

TEST_F(BlobGeometryTest, HeightsAndMeasuresAreLeftOut)
{
    for (const auto& [type, extra] :
         {std::pair("EA030000", 1), std::pair("D2070000", 1), std::pair("BA0B0000", 2)}) {
        ASSERT_TRUE(Read(
            Header
            + Wkb(type, CountTwo + One + Two + Three.repeated(extra) + Three + One + Two.repeated(extra))))
            << type;
        EXPECT_THAT(m_geometry.X(0), ElementsAre(1, 3));
        EXPECT_THAT(m_geometry.Y(0), ElementsAre(2, 1));
    }
}

TEST_F(BlobGeometryTest, SeveralPolygonsAreOneShape)
{
    const QByteArray polygon = Wkb(PolygonType, CountOne + CountOne + One + Two);
    ASSERT_TRUE(Read(Header + Wkb(PolygonsType, CountTwo + polygon + polygon)));
    ASSERT_EQ(m_geometry.Shapes().size(), 1u);
    EXPECT_EQ(m_geometry.Shapes()[0].kind, ShapeKind::Area);
    EXPECT_EQ(m_geometry.Shapes()[0].endPart, 2u);
}

TEST_F(BlobGeometryTest, MembersOfACollectionAreShapes)
{
    const QByteArray points
        = Wkb(PointsType, CountTwo + Wkb(PointType, One + Two) + Wkb(PointType, Two + One));
    ASSERT_TRUE(Read(Header + Wkb(CollectionType, CountTwo + points + Wkb(LineType, CountOne + One + Two))));
    ASSERT_EQ(m_geometry.Shapes().size(), 3u);
    EXPECT_EQ(m_geometry.Shapes()[2].kind, ShapeKind::Line);
    EXPECT_THAT(m_geometry.X(1), ElementsAre(2));
}

TEST_F(BlobGeometryTest, AMemberOfAnotherTypeIsRefused)
{
    EXPECT_FALSE(Read(Header + Wkb(PointsType, CountOne + Wkb(LineType, CountOne + One + Two))));
    EXPECT_FALSE(Read(Header + Wkb(PolygonsType, CountOne + Wkb(PointType, One + Two))));
    EXPECT_FALSE(Read(Header + Wkb(CollectionType, CountOne + Wkb("E9030000", One + Two + One))));
}

TEST_F(BlobGeometryTest, EachEnvelopeIsPassedOver)
{
    const QByteArray point = Wkb(PointType, One + Two);
    EXPECT_TRUE(Read("4750000300000000" + One.repeated(4) + point));
    EXPECT_TRUE(Read("4750000500000000" + One.repeated(6) + point));
    EXPECT_TRUE(Read("4750000700000000" + One.repeated(6) + point));
    EXPECT_TRUE(Read("4750000900000000" + One.repeated(8) + point));
    EXPECT_FALSE(Read("4750000B00000000" + One.repeated(8) + point));
}

TEST_F(BlobGeometryTest, AnotherHeaderIsRefused)
{
    const QByteArray point = Wkb(PointType, One + Two);
    EXPECT_FALSE(Read("4751000000000000" + point));
    EXPECT_FALSE(Read("4750010000000000" + point));
    EXPECT_FALSE(Read("4750002000000000" + point)); // an extended type
    EXPECT_FALSE(Read(point));
}

TEST_F(BlobGeometryTest, WhatIsCutAnywhereIsRefused)
{
    const QByteArray line = Header + Wkb(LineType, CountTwo + One + Two + Two + One);
    ASSERT_TRUE(Read(line));
    for (qsizetype size = 0; size < line.size(); size += 2)
        EXPECT_FALSE(Read(line.left(size))) << size;
    EXPECT_FALSE(Read(line + "00"));
}

TEST_F(BlobGeometryTest, AClaimOfBillionsOfPartsTakesNoMemory)
{
    for (const QByteArray& type : {LineType, PolygonType, PointsType, PolygonsType, CollectionType})
        EXPECT_FALSE(Read(Header + Wkb(type, "FFFFFFFF" + One + Two)));
    EXPECT_FALSE(Read(Header + Wkb(PolygonType, CountOne + "FFFFFF7F" + One + Two)));
}

TEST_F(BlobGeometryTest, CollectionsAreNotNestedWithoutEnd)
{
    const QByteArray level = Wkb(CollectionType, CountOne);
    EXPECT_TRUE(Read(Header + level.repeated(8) + Wkb(PointType, One + Two)));
    EXPECT_FALSE(Read(Header + level.repeated(9) + Wkb(PointType, One + Two)));
    EXPECT_FALSE(Read(Header + level.repeated(1'000'000)));
}

} // namespace Orvane
