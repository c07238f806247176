// SPDX-License-Identifier: MIT
#include "component/model/ApplyingVocabulary.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"
#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"
#include "store/any/StoreDifferences.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Three layers, of which two are also the members of a group.
class LayersTogether : public testing::Test
{
protected:
    LayersTogether()
    {
        host.AddLayer({.id = 17, .visible = true, .priority = 5});
        host.AddLayer({.id = 18, .visible = true, .priority = 6});
        host.AddLayer({.id = 19, .visible = false, .priority = 5});
        host.AddGroup({.id = 3, .members = {17, 18}});
    }

    LayerStyle Loaded(const std::vector<qint32>& layerIDs)
    {
        LayerStyle style;
        LoadLayersStyle(host, layerIDs, style);
        return style;
    }

    ApplyResult Hide(const std::vector<qint32>& layerIDs)
    {
        return ApplyLayersStyle(host, layerIDs, {StyleWith({{Slot::Visible, false}}), 0, NoSelectedStyle});
    }

    MemoryHost host;
};

} // namespace

TEST_F(LayersTogether, ShowWhatTheyHaveInCommon)
{
    const LayerStyle style = Loaded({17, 18});
    EXPECT_THAT(style.lsGet(Slot::Visible), IsValue(true));
    EXPECT_TRUE(style.lsIsNull(Slot::DrawPriority));
    EXPECT_THAT(Loaded({19, 17}).lsGet(Slot::DrawPriority), IsNumber(5));
}

TEST_F(LayersTogether, AreReadWithTheCallsOfAGroupExceptForItsMembers)
{
    Loaded({17, 18});
    const QStringList ofLayers = host.Log().Trace();
    host.ClearLog();
    LayerStyle style;
    LoadGroupStyle(host, 3, style);
    const QStringList ofGroup = host.Log().Trace();
    EXPECT_EQ(ofLayers.first(), "BeginTrans()");
    const qsizetype shared = ofLayers.size() - 1;
    EXPECT_EQ(ofLayers.mid(1), ofGroup.mid(ofGroup.size() - shared));
}

TEST_F(LayersTogether, ThatHaveGoneCountForNothing)
{
    LayerStyle style;
    const ReadingResult result = LoadLayersStyle(host, {17, 99}, style);
    ASSERT_EQ(result.seen.size(), 1U);
    EXPECT_EQ(result.seen.front().layerID, 17);
    EXPECT_THAT(style.lsGet(Slot::DrawPriority), IsNumber(5));
}

TEST_F(LayersTogether, ShowWhatTheOthersHaveInCommonIfTheFirstHasGone)
{
    LayerStyle style;
    EXPECT_EQ(LoadLayersStyle(host, {99, 17}, style).seen.size(), 1U);
    EXPECT_THAT(style.lsGet(Slot::DrawPriority), IsNumber(5));
}

TEST_F(LayersTogether, LeaveTheRecordAsItWasIfOneCannotBeRead)
{
    FailingClient client(host, {"Seek", 3, RunTimeError(10007, "unreadable", "disk")});
    LayerStyle style = StyleWith({{Slot::Name, QStringLiteral("before")}});
    EXPECT_TRUE(RaisedBy([&] { LoadLayersStyle(client, {17, 18, 19}, style); }));
    EXPECT_EQ(host.Log().Trace().last(), "Rollback()");
    EXPECT_THAT(style.lsGet(Slot::Name), IsValue(QStringLiteral("before")));
}

TEST_F(LayersTogether, AreWrittenInTheirOrderInOneTransaction)
{
    EXPECT_EQ(Hide({18, 17}).layers, 2);
    EXPECT_EQ(host.Log().Trace().first(), "BeginTrans()");
    EXPECT_EQ(host.Log().Trace().last(), "CommitTrans()");
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
    EXPECT_THAT(host.Log().CallsTo("LayerChanged"), ElementsAre("LayerChanged(18)", "LayerChanged(17)"));
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(false));
    EXPECT_THAT(host.LayerColumn(18, "Visible"), IsFlag(false));
    EXPECT_THAT(host.Queries(), IsEmpty());
}

TEST_F(LayersTogether, AreWrittenWithoutThoseThatHaveGone)
{
    EXPECT_EQ(Hide({99, 18}).layers, 1);
    EXPECT_THAT(host.LayerColumn(18, "Visible"), IsFlag(false));
    EXPECT_EQ(Hide({98, 99}).layers, 0);
}

TEST_F(LayersTogether, AreWrittenAllOrNotAtAll)
{
    FailingClient client(host, {"Update", 2, RunTimeError(10042, "disk full", "store")});
    const StyleEdits edits{StyleWith({{Slot::Visible, false}}), 0, NoSelectedStyle};
    EXPECT_TRUE(RaisedBy([&] { ApplyLayersStyle(client, {17, 18}, edits); }));
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(true));
}

TEST_F(LayersTogether, AreNotWrittenWhereOneWasChangedMeanwhile)
{
    LayerStyle style;
    const ReadingResult read = LoadLayersStyle(host, {17, 19}, style);
    host.SetLayerColumn(19, "Priority", qint16(7));
    StyleEdits edits{StyleWith({{Slot::DrawPriority, qint32(9)}}), 0, NoSelectedStyle};
    edits.asRead = style;
    edits.seen = read.seen;
    const ApplyResult result = ApplyLayersStyle(host, {17, 19}, edits);
    ASSERT_EQ(result.conflicts.size(), 1U);
    EXPECT_EQ(result.conflicts.front().slot, Slot::DrawPriority);
    EXPECT_THAT(host.LayerColumn(17, "Priority"), IsNumber(5));
}

namespace {

/// Four layers that were read together; a change is followed by reading the changed ones only, or refused.
class LayersRead : public testing::Test
{
protected:
    void SetUp() override { SkipDifferences(); }

    LayersRead()
    {
        for (qint32 layerID = 1; layerID <= 4; ++layerID)
            host.AddLayer({.id = layerID, .visible = true, .priority = 5});
        host.SetLayerColumn(3, "Priority", qint32(8));
        reading = LoadLayersStyle(host, all, style);
        host.ClearLog();
    }

    bool Reread(const QSet<qint32>& changed) { return RereadLayersStyle(host, changed, style, reading); }

    void ExpectAsIfAllWereRead()
    {
        LayerStyle expected;
        const ReadingResult whole = LoadLayersStyle(host, all, expected);
        for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot)
            EXPECT_TRUE(style.Compare(slot, expected.lsGet(slot))) << "slot " << slot;
        EXPECT_EQ(reading.seen, whole.seen);
        for (std::size_t each = 0; each < whole.modes.size(); ++each)
            EXPECT_EQ(reading.modes[each].quickMode, whole.modes[each].quickMode);
    }

    MemoryHost host;
    std::vector<qint32> all{1, 2, 3, 4};
    LayerStyle style;
    ReadingResult reading;
};

} // namespace

TEST_F(LayersRead, AreBroughtUpToDateByReadingTheChangedOnes)
{
    host.SetLayerColumn(2, "Visible", false);
    host.SetLayerColumn(4, "OverrideMode", qint32(2));
    ASSERT_TRUE(Reread({2, 4, 77}));
    EXPECT_EQ(host.Log().CallsTo("Seek").size(), 2);
    EXPECT_TRUE(style.lsIsNull(Slot::Visible));
    ExpectAsIfAllWereRead();
}

TEST_F(LayersRead, StayApartWhenAnotherOneThanThoseThatDifferTakesTheSameValue)
{
    host.SetLayerColumn(2, "Priority", qint32(8));
    ASSERT_TRUE(Reread({2}));
    EXPECT_TRUE(style.lsIsNull(Slot::DrawPriority));
    ExpectAsIfAllWereRead();
}

TEST_F(LayersRead, AreAllReadAgainWhenTheOneThatDifferedMayBeLikeTheOthers)
{
    host.SetLayerColumn(3, "Priority", qint32(5));
    EXPECT_FALSE(Reread({3}));
    host.SetLayerColumn(1, "Visible", false);
    EXPECT_FALSE(Reread({1})) << "all others are compared with the first one";
}

TEST_F(LayersRead, AreAllReadAgainWhenTheOneThatDiffersSinceThenIsLikeTheOthersAgain)
{
    host.SetLayerColumn(2, "Visible", false);
    ASSERT_TRUE(Reread({2}));
    host.SetLayerColumn(2, "Visible", true);
    EXPECT_FALSE(Reread({2}));
}

TEST_F(LayersRead, AreAllReadAgainWhenOneHasGoneOrCannotBeRead)
{
    const LayerStyle before = style;
    host.SetLayerColumn(2, "LineThickness", QString("thick"));
    EXPECT_FALSE(Reread({2}));
    host.RemoveLayerRow(4);
    EXPECT_FALSE(Reread({4}));
    EXPECT_EQ(reading.seen.size(), 4U);
    EXPECT_FALSE(reading.fault.has_value());
    EXPECT_TRUE(style.Compare(Slot::LineThickness, before.lsGet(Slot::LineThickness)));
}
