// SPDX-License-Identifier: MIT
#include "component/model/CheckedColumns.h"

#include "hosts/MemoryHost.h"
#include "hosts/PatchingClient.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;

namespace {

/// The row of one layer, in which a column gives the value under test.
class LayerColumns : public testing::Test
{
protected:
    LayerColumns() { host.AddLayer({.id = 17}); }

    const IRecordset& RowWith(const char* column, const Value& value)
    {
        client = std::make_unique<PatchingClient>(host, ColumnPatches{{column, value}});
        row = client->LayersTable();
        row->Index("LayerIDIDX");
        row->Seek("=", 17);
        return *row;
    }

    MemoryHost host;
    std::unique_ptr<PatchingClient> client;
    std::unique_ptr<IRecordset> row;
};

} // namespace

TEST_F(LayerColumns, ANumberComesInItsOwnKind)
{
    EXPECT_THAT(NumberColumn(RowWith("Priority", qint16(5)), "Priority"), IsValue(qint16(5)));
    EXPECT_THAT(NumberColumn(RowWith("Priority", 5.5), "Priority"), IsValue(5.5));
}

TEST_F(LayerColumns, ATextThatHoldsANumberIsOneAndStaysAsItIs)
{
    EXPECT_THAT(
        NumberColumn(RowWith("Priority", QStringLiteral("5")), "Priority"), IsValue(QStringLiteral("5")));
}

TEST_F(LayerColumns, NullIsNull)
{
    EXPECT_THAT(NumberColumn(RowWith("Priority", Value::Null()), "Priority"), IsNullValue());
    EXPECT_THAT(FlagColumn(RowWith("Visible", Value::Null()), "Visible"), IsNullValue());
    EXPECT_THAT(Int32Column(RowWith("Color", Value::Null()), "Color"), IsNullValue());
}

TEST_F(LayerColumns, AnyNumberThatIsNotZeroIsTrue)
{
    for (const Value& set :
         {Value(true), Value(qint32(1)), Value(qint16(-1)), Value(0.5), Value(qint32(255))})
        EXPECT_THAT(FlagColumn(RowWith("Visible", set), "Visible"), IsValue(true));
    for (const Value& unset : {Value(false), Value(qint32(0)), Value(0.0)})
        EXPECT_THAT(FlagColumn(RowWith("Visible", unset), "Visible"), IsValue(false));
}

TEST_F(LayerColumns, AFlagThatIsNotKnownIsNotSet)
{
    EXPECT_FALSE(FlagIsSet(RowWith("SystemLayer", Value::Null()), "SystemLayer"));
    EXPECT_TRUE(FlagIsSet(RowWith("SystemLayer", qint32(1)), "SystemLayer"));
}

TEST_F(LayerColumns, AnIntegerIsRoundedHalfToEven)
{
    EXPECT_THAT(Int32Column(RowWith("Color", 2.5), "Color"), IsValue(qint32(2)));
    EXPECT_EQ(IntegerColumn(RowWith("LayerID", 3.5), "LayerID"), 4);
}

TEST_F(LayerColumns, ATextInsteadOfANumberRaisesTypeMismatchAndNamesTheColumn)
{
    const IRecordset& patched = RowWith("Priority", QStringLiteral("high"));
    const auto error = RaisedBy([&] { NumberColumn(patched, "Priority"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), typeMismatchError);
    EXPECT_TRUE(error->Description().contains(QStringLiteral("Priority")));
    EXPECT_EQ(ErrorOf([&] { FlagColumn(patched, "Priority"); }), typeMismatchError);
    EXPECT_EQ(ErrorOf([&] { Int32Column(patched, "Priority"); }), typeMismatchError);
    EXPECT_EQ(ErrorOf([&] { IntegerColumn(patched, "Priority"); }), typeMismatchError);
}

TEST_F(LayerColumns, AKeyThatIsNullRaisesTypeMismatch)
{
    const IRecordset& patched = RowWith("LayerID", Value::Null());
    EXPECT_EQ(ErrorOf([&] { IntegerColumn(patched, "LayerID"); }), typeMismatchError);
}

TEST_F(LayerColumns, ANumberBeyond32BitsRaisesOverflow)
{
    const IRecordset& patched = RowWith("Color", 4294967296.0);
    EXPECT_EQ(ErrorOf([&] { Int32Column(patched, "Color"); }), overflowError);
}

TEST_F(LayerColumns, TheQuickModeComesFromTheOverrideMode)
{
    EXPECT_EQ(QuickModeColumn(RowWith("OverrideMode", qint32(2))), 4);
    EXPECT_EQ(QuickModeColumn(RowWith("OverrideMode", Value::Null())), 1);
    const IRecordset& patched = RowWith("OverrideMode", QStringLiteral("hidden"));
    EXPECT_EQ(ErrorOf([&] { QuickModeColumn(patched); }), typeMismatchError);
}

TEST_F(LayerColumns, TheDatabasesOwnErrorIsPassedOnUnchanged)
{
    const IRecordset& plain = RowWith("Priority", qint32(1));
    const auto own = RaisedBy([&] { plain.Field("NoSuchColumn"); });
    const auto passedOn = RaisedBy([&] { NumberColumn(plain, "NoSuchColumn"); });
    ASSERT_TRUE(own && passedOn);
    EXPECT_EQ(passedOn->Number(), own->Number());
    EXPECT_EQ(passedOn->Description(), own->Description());
}
