// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerRow.h"

#include "hostkit/HostKitTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {
namespace {

class LayerRowTest : public HostKitTest
{
};

TEST_F(LayerRowTest, ANewRowHasTheDefaultsOfItsTable)
{
    LayerRow row;
    const qint32 layerID = row.StoreNew(Database());
    Database().Execute(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (?1)"), {layerID + 1});
    for (const LayerColumn& column : LayerColumns) {
        if (column.kind == ColumnKind::Key)
            continue;
        EXPECT_TRUE(Get(layerID, column.name).IsIdenticalTo(Get(layerID + 1, column.name))) << column.name;
        EXPECT_FALSE(Get(layerID, column.name).IsNull()) << column.name;
    }
}

TEST_F(LayerRowTest, AColumnKeepsWhatItIsGiven)
{
    AddLayer(41, QStringLiteral("Roads"));
    LayerRow row;
    row.Set("Name", QStringLiteral("Rivers"));
    row.Set("Color", Value::Null());
    EXPECT_EQ(row.StoreNew(Database()), 42);
    EXPECT_THAT(Get(42, "Name"), IsValue(QStringLiteral("Rivers")));
    EXPECT_THAT(Get(42, "Color"), IsNullValue());
}

TEST_F(LayerRowTest, ARowIsStoredUnderAGivenIDOnce)
{
    LayerRow().StoreAs(17, Database());
    EXPECT_THAT(Get(17, "LayerID"), IsNumber(17));
    EXPECT_EQ(ErrorOf([this] { LayerRow().StoreAs(17, Database()); }), int(ErrorNumber::DatabaseFailure));
}

TEST_F(LayerRowTest, AColumnThatThereIsNotIsRefused)
{
    LayerRow row;
    EXPECT_EQ(ErrorOf([&] { row.Set("Colour", 5); }), int(ErrorNumber::SubscriptOutOfRange));
}

TEST_F(LayerRowTest, ARowCanBeCopied)
{
    AddLayer(1, QStringLiteral("Roads"), 5);
    Set(1, "LineThickness", -7);
    {
        const auto layer = Database().OpenQuery(QStringLiteral("SELECT * FROM Layers"));
        EXPECT_EQ(LayerRow(*layer).StoreNew(Database()), 2);
    }
    EXPECT_THAT(Get(2, "LineThickness"), IsNumber(-7));
    EXPECT_THAT(Get(2, "Code"), IsNumber(5));
}

TEST_F(LayerRowTest, AnotherRowsBadValuesDoNotPreventANewOne)
{
    AddLayer(41, QStringLiteral("Roads"), 0);
    AddLayer(42, QStringLiteral("Rivers"), QStringLiteral("x"));
    Database().Execute(QStringLiteral("INSERT INTO Layers (LayerID, Code) VALUES (2147483648, 2)"));
    EXPECT_EQ(LayerRow::LowestFreeCode(Database()), 1);
    EXPECT_EQ(LayerRow().StoreNew(Database()), 43);
}

TEST_F(LayerRowTest, CodesBeyondTheirRangeLeaveTheLowOnesFree)
{
    AddLayer(1, QStringLiteral("Far"), 1e12);
    EXPECT_EQ(LayerRow::LowestFreeCode(Database()), 0);
    AddLayer(2, QStringLiteral("Last"), 32767);
    AddLayer(3, QStringLiteral("First"), 0);
    EXPECT_EQ(LayerRow::LowestFreeCode(Database()), 1);
}

TEST_F(LayerRowTest, ManyNewLayersFillTheGapsAmongTheCodes)
{
    AddLayer(1, QStringLiteral("First"), 1);
    AddLayer(2, QStringLiteral("Last"), 4);
    EXPECT_THAT(LayerRow::FreeCodes(Database(), 5), testing::ElementsAre(0, 2, 3, 5, 6));
}

TEST_F(LayerRowTest, AFractionalCodeTakesNoneOfManyNewLayers)
{
    AddLayer(1, QStringLiteral("First"), 1);
    AddLayer(2, QStringLiteral("Between"), 2.5);
    EXPECT_THAT(LayerRow::FreeCodes(Database(), 3), testing::ElementsAre(0, 2, 3));
}

TEST_F(LayerRowTest, NewLayersGetNoCodeWhenAllAreTaken)
{
    AddLayer(1, QStringLiteral("Last"), 32767);
    const std::vector<qint16> codes = LayerRow::FreeCodes(Database(), 32769);
    EXPECT_EQ(codes.at(32766), 32766);
    EXPECT_EQ(codes.at(32767), LayerRow::NoCode);
    EXPECT_EQ(codes.at(32768), LayerRow::NoCode);
}

TEST_F(LayerRowTest, NewLayersWhoseIDsWouldBeTooHighAreRefused)
{
    AddLayer(2147483646, QStringLiteral("Far"));
    EXPECT_THAT(LayerRow::FreeIDs(Database(), 1), testing::ElementsAre(2147483647));
    EXPECT_EQ(ErrorOf([this] { LayerRow::FreeIDs(Database(), 2); }), int(ErrorNumber::Overflow));
}

} // namespace
} // namespace Orvane::Testing
