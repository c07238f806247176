// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerRow.h"

#include "hostkit/HostKitTest.h"

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

} // namespace
} // namespace Orvane::Testing
