// SPDX-License-Identifier: MIT
#include "hostkit/lists/ListedFields.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/lists/ListedLayer.h"
#include "hostkit/lists/StoredList.h"

#include <OrvaneShellLib/LayerColumns.h>
#include <OrvaneShellLib/LayerValues.h>

#include <set>

namespace Orvane::Testing {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class ListedFieldsTest : public HostKitTest
{
protected:
    ListedLayer Read(qint32 layerID) { return StoredList::Layer(Database(), layerID).value(); }
};

TEST_F(ListedFieldsTest, EachColumnExceptTheIDHasAField)
{
    std::set<std::string> columns{"LayerID"};
    for (const ListedFields::ColumnValue& column : ListedFields::Columns({}))
        EXPECT_TRUE(columns.insert(column.column).second) << column.column;
    for (const LayerColumn& column : LayerColumns)
        EXPECT_EQ(columns.count(column.name), 1U) << column.name;
    EXPECT_EQ(columns.size(), LayerColumns.size());
}

TEST_F(ListedFieldsTest, EachFieldBeginsWithItsColumnsDefault)
{
    Database().Execute(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (7)"));
    for (const ListedFields::ColumnValue& column : ListedFields::Columns({})) {
        const Value stored = Get(7, column.column);
        if (column.value.IsText())
            EXPECT_THAT(stored, IsValue(QString())) << column.column;
        else
            EXPECT_EQ(ToDouble(stored), ToDouble(column.value)) << column.column;
    }
    EXPECT_EQ(Read(7), ListedLayer{.id = 7});
}

TEST_F(ListedFieldsTest, TheTopByteOfALineColourIsAFieldOfItsOwn)
{
    AddLayer(1, QStringLiteral("Roads"));
    Set(1, "Color", qint32(0xFF123456U));
    EXPECT_EQ(Read(1).lineColour, 0x123456);
    EXPECT_FALSE(Read(1).usedForSymbols);
    Set(1, "Color", 0x123456);
    EXPECT_EQ(Read(1).lineColour, 0x123456);
    EXPECT_TRUE(Read(1).usedForSymbols);
}

TEST_F(ListedFieldsTest, AFillColourMayBeTransparent)
{
    AddLayer(1, QStringLiteral("Roads"));
    Set(1, "FillBackColor", TransparentColour);
    EXPECT_EQ(Read(1).fillBackColour, TransparentColour);
}

TEST_F(ListedFieldsTest, AValueThatCannotBeReadGivesTheDefault)
{
    AddLayer(1, QStringLiteral("Roads"));
    Set(1, "LineThickness", QStringLiteral("thick"));
    Set(1, "FillBackColor", Value::Null());
    EXPECT_EQ(Read(1).lineThickness, 0);
    EXPECT_EQ(Read(1).fillBackColour, 0xFFFFFF);
    EXPECT_EQ(Read(1).name, QStringLiteral("Roads"));
}

TEST_F(ListedFieldsTest, OnlyColumnsThatDifferAreNamed)
{
    const ListedLayer stored{.id = 1, .name = QStringLiteral("Roads")};
    EXPECT_THAT(ListedFields::Differences(stored, stored), IsEmpty());
    const auto columns = ListedFields::Differences(
        stored, {.id = 1, .name = QStringLiteral("Roads"), .usedForSymbols = false});
    ASSERT_THAT(columns, SizeIs(1));
    EXPECT_STREQ(columns[0].column, "Color");
    EXPECT_THAT(columns[0].value, IsValue(TransparentColour));
}

} // namespace
} // namespace Orvane::Testing
