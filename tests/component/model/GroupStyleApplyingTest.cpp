// SPDX-License-Identifier: MIT
#include "component/model/ApplyingVocabulary.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyleApplying.h"
#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ApplyGroupStyleTo : public testing::Test
{
protected:
    MemoryHost host;
};

} // namespace

TEST_F(ApplyGroupStyleTo, EveryMemberIsWrittenInTheOrderOfTheMembersQueryInOneTransaction)
{
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18});
    host.AddGroup({.id = 3, .members = {18, 17}});
    ApplyGroupStyle(host, 3, {StyleWith({{Slot::Visible, false}}), 0, NoSelectedStyle});
    EXPECT_EQ(host.Log().Trace().first(), "BeginTrans()");
    EXPECT_EQ(host.Log().Trace().last(), "CommitTrans()");
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
    EXPECT_THAT(host.Queries(), ElementsAre("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=3"));
    QStringList expected;
    for (const qint32 layerID : ReadMemberLayerIDs(host, 3))
        expected.append(QStringLiteral("LayerChanged(%1)").arg(layerID));
    EXPECT_EQ(expected.size(), 2);
    EXPECT_EQ(host.Log().CallsTo("LayerChanged"), expected);
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(false));
    EXPECT_THAT(host.LayerColumn(18, "Visible"), IsFlag(false));
}

TEST_F(ApplyGroupStyleTo, EachMemberKeepsItsOwnPartOfTheColour)
{
    host.AddLayer({.id = 17, .color = redNotForSymbols});
    host.AddLayer({.id = 18, .color = 0x0000FF});
    host.AddGroup({.id = 3, .members = {17, 18}});
    ApplyGroupStyle(host, 3, {StyleWith({{Slot::LineColour, qint32(0x00FF00)}}), 0, NoSelectedStyle});
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(qint32(0xFF00FF00U)));
    EXPECT_THAT(host.LayerColumn(18, "Color"), IsNumber(0x00FF00));
}

TEST_F(ApplyGroupStyleTo, TheListIsAskedForEachMember)
{
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18});
    host.AddGroup({.id = 3, .members = {17, 18}});
    qint32 selected = 4;
    const auto list = [&] { return Value(++selected); };
    ApplyGroupStyle(host, 3, {StyleWith({{Slot::RendererStyle, qint32(1)}}), 0, list});
    EXPECT_THAT(host.LayerColumn(17, "Style"), IsNumber(5));
    EXPECT_THAT(host.LayerColumn(18, "Style"), IsNumber(6));
}

TEST_F(ApplyGroupStyleTo, LayersOfOtherGroupsAreLeftAlone)
{
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18, .visible = true});
    host.AddGroup({.id = 3, .members = {17}});
    host.AddGroup({.id = 4, .members = {18}});
    ApplyGroupStyle(host, 3, {StyleWith({{Slot::Visible, false}}), 0, NoSelectedStyle});
    EXPECT_THAT(host.LayerColumn(18, "Visible"), IsFlag(true));
}

TEST_F(ApplyGroupStyleTo, MissingMembersAreLeftOut)
{
    host.AddLayer({.id = 18});
    host.AddGroup({.id = 3, .members = {17, 18}});
    ApplyGroupStyle(host, 3, {StyleWith({{Slot::Visible, false}}), 2, NoSelectedStyle});
    EXPECT_THAT(host.LayerColumn(18, "OverrideMode"), IsNumber(1));
    EXPECT_THAT(host.Log().CallsTo("LayerChanged"), ElementsAre("LayerChanged(18)"));
}

TEST_F(ApplyGroupStyleTo, AGroupWithoutMembersWritesNothing)
{
    host.AddGroup({.id = 3});
    ApplyGroupStyle(host, 3, {FullStyle(), 2, NoSelectedStyle});
    EXPECT_THAT(host.Log().CallsTo("Edit"), IsEmpty());
    EXPECT_EQ(host.Log().Trace().last(), "CommitTrans()");
}

namespace {

/// A group of five visible layers.
class GroupOfFive : public testing::Test
{
protected:
    GroupOfFive()
    {
        for (qint32 layerID = 1; layerID <= 5; ++layerID)
            host.AddLayer({.id = layerID, .visible = true});
        host.AddGroup({.id = 3, .members = {1, 2, 3, 4, 5}});
    }

    std::optional<RunTimeError> HideAllWhile(const char* member, int call)
    {
        FailingClient client(host, {member, call, RunTimeError(10042, "disk full", "store")});
        const LayerStyle style = StyleWith({{Slot::Visible, false}});
        return RaisedBy([&] { ApplyGroupStyle(client, 3, {style, 4, NoSelectedStyle}); });
    }

    void ExpectAllAsBefore()
    {
        for (qint32 layerID = 1; layerID <= 5; ++layerID) {
            EXPECT_THAT(host.LayerColumn(layerID, "Visible"), IsFlag(true)) << layerID;
            EXPECT_THAT(host.LayerColumn(layerID, "OverrideMode"), IsNumber(0)) << layerID;
        }
    }

    MemoryHost host;
};

} // namespace

TEST_F(GroupOfFive, IsWrittenWholeOrNotAtAllWhicheverUpdateFails)
{
    for (int call = 1; call <= 5; ++call) {
        const auto error = HideAllWhile("Update", call);
        ASSERT_TRUE(error) << call;
        ExpectAllAsBefore();
    }
}

TEST_F(GroupOfFive, IsLeftAsItWasWhereverElseItFails)
{
    for (const char* member : {"BeginTrans", "OpenRecordset", "LayersTable", "Index", "MoveNext"})
        EXPECT_TRUE(HideAllWhile(member, 1)) << member;
    for (const char* member : {"Seek", "BeginLayerEdit", "SetField", "LayerChanged"})
        EXPECT_TRUE(HideAllWhile(member, 3)) << member;
    EXPECT_TRUE(HideAllWhile("CommitTrans", 1));
    ExpectAllAsBefore();
}

TEST_F(GroupOfFive, PassesTheErrorOnUnchanged)
{
    const auto error = HideAllWhile("Update", 3);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 10042);
    EXPECT_EQ(error->Description(), "disk full");
    EXPECT_EQ(error->Source(), "store");
}

TEST_F(GroupOfFive, CanBeWrittenAfterAFailure)
{
    HideAllWhile("Update", 3);
    ApplyGroupStyle(host, 3, {StyleWith({{Slot::Visible, false}}), 4, NoSelectedStyle});
    for (qint32 layerID = 1; layerID <= 5; ++layerID)
        EXPECT_THAT(host.LayerColumn(layerID, "Visible"), IsFlag(false)) << layerID;
}
