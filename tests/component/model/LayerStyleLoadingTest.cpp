// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleLoading.h"

#include "component/model/LayerStyle.h"
#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/PatchingClient.h"
#include "hosts/ValueMatchers.h"
#include "store/any/StoreDifferences.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

constexpr qint32 redNotForSymbols = qint32(0xFF0000FFU);

class Loading : public testing::Test
{
protected:
    void SetUp() override { SkipDifferences(); }

    LayerStyle Loaded(qint32 layerID)
    {
        LayerStyle style;
        LoadLayerStyle(host, layerID, style);
        return style;
    }

    LayerStyle LoadedGroup(qint32 groupID)
    {
        LayerStyle style;
        LoadGroupStyle(host, groupID, style);
        return style;
    }

    LayerStyle LoadedWith(ColumnPatches patches)
    {
        PatchingClient client(host, std::move(patches));
        LayerStyle style;
        LoadLayerStyle(client, 17, style);
        return style;
    }

    MemoryHost host;
};

using LoadLayerStyleFrom = Loading;
using LoadGroupStyleFrom = Loading;

const char* const numberColumns[]
    = {"Code",          "Color",       "FillForeColor", "FillBackColor", "OutlineStyle", "FillStyle",
       "LineThickness", "MinVisScale", "MaxVisScale",   "Priority",      "Style"};
const char* const flagColumns[]
    = {"Visible", "Selectable", "locked", "Hitable", "SnapRequired", "Enquirable"};

} // namespace

TEST_F(LoadLayerStyleFrom, EachColumnGoesIntoItsSlot)
{
    host.AddLayer(
        {.id = 17,
         .name = "Roads",
         .code = 3,
         .visible = false,
         .selectable = true,
         .locked = true,
         .hitable = false,
         .snapRequired = true,
         .enquirable = false,
         .color = redNotForSymbols,
         .fillForeColor = 0x010203,
         .fillBackColor = 0x040506,
         .outlineStyle = 7,
         .fillStyle = 8,
         .lineThickness = -9,
         .minVisScale = 10000.0,
         .maxVisScale = 20000.0,
         .priority = 11,
         .style = 12});
    const LayerStyle style = Loaded(17);
    EXPECT_THAT(style.lsGet(0), IsValue(QStringLiteral("Roads")));
    EXPECT_THAT(style.lsGet(1), IsNumber(3));
    EXPECT_THAT(style.lsGet(2), IsValue(false));
    EXPECT_THAT(style.lsGet(3), IsValue(true));
    EXPECT_THAT(style.lsGet(4), IsValue(true));
    EXPECT_THAT(style.lsGet(5), IsValue(false));
    EXPECT_THAT(style.lsGet(6), IsValue(true));
    EXPECT_THAT(style.lsGet(7), IsValue(false));
    EXPECT_THAT(style.lsGet(8), IsValue(qint32(0xFF)));
    EXPECT_THAT(style.lsGet(9), IsNumber(0x010203));
    EXPECT_THAT(style.lsGet(10), IsNumber(0x040506));
    EXPECT_THAT(style.lsGet(11), IsValue(false));
    EXPECT_THAT(style.lsGet(12), IsNumber(7));
    EXPECT_THAT(style.lsGet(13), IsNumber(8));
    EXPECT_THAT(style.lsGet(14), IsNumber(-9));
    EXPECT_THAT(style.lsGet(15), IsValue(qint32(10)));
    EXPECT_THAT(style.lsGet(16), IsValue(qint32(20)));
    EXPECT_THAT(style.lsGet(17), IsNumber(12));
    EXPECT_THAT(style.lsGet(18), IsNumber(11));
}

TEST_F(LoadLayerStyleFrom, TheRowIsSoughtInTheHostsTable)
{
    host.AddLayer({.id = 17});
    Loaded(17);
    EXPECT_THAT(
        host.Log().Trace().mid(0, 3), ElementsAre("LayersTable()", "Index(LayerIDIDX)", "Seek(=, 17)"));
}

TEST_F(LoadLayerStyleFrom, StoredScalesAreConvertedByTheHost)
{
    host.AddLayer({.id = 17, .minVisScale = 2500.5, .maxVisScale = 7000.0});
    Loaded(17);
    EXPECT_THAT(
        host.Log().CallsTo("StoredScaleToDialog"),
        ElementsAre("StoredScaleToDialog(2500.5)", "StoredScaleToDialog(7000)"));
}

TEST_F(LoadLayerStyleFrom, AZeroTopByteMeansUsedForSymbols)
{
    host.AddLayer({.id = 17, .color = 0x123456});
    const LayerStyle style = Loaded(17);
    EXPECT_THAT(style.lsGet(Slot::LineColour), IsValue(qint32(0x123456)));
    EXPECT_THAT(style.lsGet(Slot::UseForSymbols), IsValue(true));
}

TEST_F(LoadLayerStyleFrom, ANullColumnGivesANullSlot)
{
    host.AddLayer({.id = 17});
    for (const char* column : numberColumns)
        host.SetLayerColumn(17, column, Value::Null());
    for (const char* column : flagColumns)
        host.SetLayerColumn(17, column, Value::Null());
    host.SetLayerColumn(17, "Name", Value::Null());
    const LayerStyle style = Loaded(17);
    for (qint16 slot = 0; slot < 19; ++slot)
        EXPECT_TRUE(style.lsIsNull(slot)) << slot;
}

TEST_F(LoadLayerStyleFrom, ANullColourLeavesTheOtherSlotsKnown)
{
    host.AddLayer({.id = 17, .color = Value::Null()});
    const LayerStyle style = Loaded(17);
    for (qint16 slot = 0; slot < 19; ++slot)
        EXPECT_EQ(style.lsIsNull(slot), slot == Slot::LineColour || slot == Slot::UseForSymbols) << slot;
}

TEST_F(LoadLayerStyleFrom, AMissingLayerLeavesTheRecordAsItWas)
{
    LayerStyle style;
    style.lsSet(Slot::Name, QStringLiteral("before"));
    LoadLayerStyle(host, 99, style);
    EXPECT_THAT(style.lsGet(Slot::Name), IsValue(QStringLiteral("before")));
    EXPECT_TRUE(style.lsIsNull(Slot::Code));
}

TEST_F(LoadLayerStyleFrom, ATextInANumbersColumnIsNamedAndHidesNoOtherValue)
{
    host.AddLayer({.id = 17, .name = "Roads", .priority = 7});
    for (const char* column : {"Color", "LineThickness", "MinVisScale", "Style", "Visible", "OverrideMode"}) {
        PatchingClient client(host, {{column, QStringLiteral("red")}});
        LayerStyle style;
        const ReadingResult result = LoadLayerStyle(client, 17, style);
        ASSERT_TRUE(result.fault) << column;
        EXPECT_EQ(
            result.fault->Description(),
            QStringLiteral("Roads: %1 'red' is not a number.").arg(QLatin1String(column)));
        EXPECT_THAT(style.lsGet(Slot::DrawPriority), IsNumber(7)) << column;
    }
}

TEST_F(LoadLayerStyleFrom, AValueThatCannotBeReadIsNull)
{
    host.AddLayer({.id = 17});
    PatchingClient client(host, {{"Color", 1e12}, {"FillStyle", QStringLiteral("dots")}});
    LayerStyle style;
    EXPECT_EQ(LoadLayerStyle(client, 17, style).fault->Number(), overflowError);
    for (qint16 slot : {Slot::LineColour, Slot::UseForSymbols, Slot::FillStyle})
        EXPECT_TRUE(style.lsIsNull(slot)) << slot;
}

TEST_F(LoadLayerStyleFrom, TheQuickModeIsThatOfTheRow)
{
    host.AddLayer({.id = 17});
    host.SetLayerColumn(17, "OverrideMode", qint16(2));
    LayerStyle style;
    const ReadingResult result = LoadLayerStyle(host, 17, style);
    ASSERT_EQ(result.modes.size(), 1U);
    EXPECT_EQ(result.modes.front().layerID, 17);
    EXPECT_EQ(result.modes.front().quickMode, 4);
}

TEST_F(LoadGroupStyleFrom, WhatAllMembersShareIsKnownAndTheRestIsVarious)
{
    host.AddLayer({.id = 17, .name = "Roads", .code = 1, .visible = true, .priority = 5});
    host.AddLayer({.id = 18, .name = "Rails", .code = 2, .visible = false, .priority = 5});
    host.AddGroup({.id = 3, .members = {17, 18}});
    const LayerStyle style = LoadedGroup(3);
    EXPECT_THAT(style.lsGet(Slot::Name), IsNullValue());
    EXPECT_THAT(style.lsGet(Slot::Code), IsNullValue());
    EXPECT_THAT(style.lsGet(Slot::Visible), IsNullValue());
    EXPECT_THAT(style.lsGet(Slot::DrawPriority), IsNumber(5));
    EXPECT_THAT(style.lsGet(Slot::Selectable), IsValue(true));
}

TEST_F(LoadGroupStyleFrom, AValueThatIsNullInALaterMemberIsKept)
{
    host.AddLayer({.id = 17, .priority = 5});
    host.AddLayer({.id = 18, .priority = Value::Null()});
    host.AddGroup({.id = 3, .members = {17, 18}});
    EXPECT_THAT(LoadedGroup(3).lsGet(Slot::DrawPriority), IsNumber(5));
}

TEST_F(LoadGroupStyleFrom, AValueThatIsNullInTheFirstMemberStaysNull)
{
    host.AddLayer({.id = 17, .priority = Value::Null()});
    host.AddLayer({.id = 18, .priority = 5});
    host.AddGroup({.id = 3, .members = {17, 18}});
    EXPECT_THAT(LoadedGroup(3).lsGet(Slot::DrawPriority), IsNullValue());
}

TEST_F(LoadGroupStyleFrom, ColourAndSymbolFlagDifferIndependently)
{
    host.AddLayer({.id = 17, .color = redNotForSymbols});
    host.AddLayer({.id = 18, .color = 0x0000FF});
    host.AddGroup({.id = 3, .members = {17, 18}});
    const LayerStyle style = LoadedGroup(3);
    EXPECT_THAT(style.lsGet(Slot::LineColour), IsValue(qint32(0xFF)));
    EXPECT_THAT(style.lsGet(Slot::UseForSymbols), IsNullValue());
}

TEST_F(LoadGroupStyleFrom, OneMemberGivesThatLayersRecord)
{
    host.AddLayer({.id = 17, .name = "Roads"});
    host.AddGroup({.id = 3, .members = {17}});
    const LayerStyle group = LoadedGroup(3);
    const LayerStyle layer = Loaded(17);
    for (qint16 slot = 0; slot < 19; ++slot)
        EXPECT_THAT(group.lsGet(slot), IsValue(layer.lsGet(slot))) << slot;
}

TEST_F(LoadGroupStyleFrom, AGroupWithoutMembersIsAllNullWhateverWasInTheRecord)
{
    host.AddGroup({.id = 3});
    LayerStyle style;
    style.lsSet(Slot::Name, QStringLiteral("before"));
    LoadGroupStyle(host, 3, style);
    for (qint16 slot = 0; slot < 19; ++slot)
        EXPECT_TRUE(style.lsIsNull(slot)) << slot;
}

TEST_F(LoadGroupStyleFrom, AMemberWhoseLayerIsMissingCountsForNothing)
{
    host.AddLayer({.id = 17, .name = "Roads"});
    host.AddGroup({.id = 3, .members = {17, 99}});
    EXPECT_THAT(LoadedGroup(3).lsGet(Slot::Name), IsValue(QStringLiteral("Roads")));
}

TEST_F(LoadGroupStyleFrom, AHiddenMemberCountsToo)
{
    host.AddLayer({.id = 17, .priority = 5});
    host.AddLayer({.id = 18, .code = -3, .priority = 6});
    host.AddGroup({.id = 3, .members = {17, 18}});
    EXPECT_THAT(LoadedGroup(3).lsGet(Slot::DrawPriority), IsNullValue());
}

TEST_F(LoadGroupStyleFrom, AValueThatOneMemberCannotGiveIsVarious)
{
    host.AddLayer({.id = 17, .priority = 7});
    host.AddLayer({.id = 18, .name = "Roads", .priority = 7});
    host.SetLayerColumn(18, "Priority", QStringLiteral("high"));
    host.AddGroup({.id = 3, .members = {17, 18}});
    LayerStyle style;
    const ReadingResult result = LoadGroupStyle(host, 3, style);
    EXPECT_TRUE(style.lsIsNull(Slot::DrawPriority)); // an apply must not write the other's value over it
    ASSERT_TRUE(result.fault);
    EXPECT_EQ(result.fault->Description(), "Roads: Priority 'high' is not a number.");
}

TEST_F(LoadGroupStyleFrom, TheQuickModesAreThoseOfTheMembersRows)
{
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18});
    host.SetLayerColumn(18, "OverrideMode", qint16(1));
    host.AddGroup({.id = 3, .members = {17, 99, 18}});
    LayerStyle style;
    const ReadingResult result = LoadGroupStyle(host, 3, style);
    ASSERT_EQ(result.modes.size(), 2U);
    EXPECT_EQ(result.modes[0].quickMode, 1);
    EXPECT_EQ(result.modes[1].layerID, 18);
    EXPECT_EQ(result.modes[1].quickMode, 2);
}

TEST_F(LoadGroupStyleFrom, EverythingIsReadInsideOneTransaction)
{
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18});
    host.AddGroup({.id = 3, .members = {17, 18}});
    LoadedGroup(3);
    const QStringList trace = host.Log().Trace();
    EXPECT_EQ(trace.first(), "BeginTrans()");
    EXPECT_EQ(trace.last(), "CommitTrans()");
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
}

TEST_F(LoadGroupStyleFrom, AnErrorIsPassedOnUnchangedAfterARollback)
{
    host.AddLayer({.id = 17});
    host.AddGroup({.id = 3, .members = {17}});
    FailingClient client(host, {"Field", 5, RunTimeError(10007, "unreadable", "disk")});
    LayerStyle style;
    style.lsSet(Slot::Name, QStringLiteral("before"));
    const auto error = RaisedBy([&] { LoadGroupStyle(client, 3, style); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 10007);
    EXPECT_EQ(error->Description(), "unreadable");
    EXPECT_EQ(error->Source(), "disk");
    EXPECT_EQ(host.Log().Trace().last(), "Rollback()");
    EXPECT_THAT(host.Log().Trace(), Not(Contains("CommitTrans()")));
    EXPECT_THAT(style.lsGet(Slot::Name), IsValue(QStringLiteral("before")));
}
