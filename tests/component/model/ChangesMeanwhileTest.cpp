// SPDX-License-Identifier: MIT
#include "component/model/ChangesMeanwhile.h"

#include "component/model/ApplyingVocabulary.h"
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;

namespace {

/// A layer, or a group of two, that is read, edited, and meanwhile changed by somebody else.
class ChangedMeanwhile : public testing::Test
{
protected:
    ChangedMeanwhile()
    {
        host.AddLayer({.id = 17, .locked = false, .fillStyle = 3, .priority = 7});
        host.AddLayer({.id = 18, .locked = false, .fillStyle = 3, .priority = 7});
        host.AddGroup({.id = 3, .members = {17, 18}});
    }

    void ReadTheLayer() { Take(LoadLayerStyle(host, 17, edits.style)); }
    void ReadTheGroup() { Take(LoadGroupStyle(host, 3, edits.style)); }

    void Take(const ReadingResult& read)
    {
        edits.asRead = edits.style;
        edits.seen = read.seen;
        edits.quickMode = edits.modeAsRead = QuickMode::Normal;
        edits.selectedStyle = NoSelectedStyle;
        host.ClearLog();
    }

    Value Get(qint32 layerID, const char* column) { return host.LayerColumn(layerID, column); }

    MemoryHost host;
    StyleEdits edits;
};

} // namespace

TEST_F(ChangedMeanwhile, AValueThatWasNotEditedIsNotWrittenOverTheNewOne)
{
    ReadTheLayer();
    host.SetLayerColumn(17, "Priority", qint32(9));
    host.SetLayerColumn(17, "Color", qint32(0xFF));
    edits.style.lsSet(Slot::Locked, true);
    const ApplyResult result = ApplyLayerStyle(host, 17, edits);
    EXPECT_TRUE(result.conflicts.empty());
    EXPECT_EQ(result.layers, 1);
    EXPECT_THAT(Get(17, "Priority"), IsNumber(9));
    EXPECT_THAT(Get(17, "Color"), IsNumber(0xFF));
    EXPECT_THAT(Get(17, "locked"), IsFlag(true));
}

TEST_F(ChangedMeanwhile, WhereNothingChangedEverythingIsWrittenAsEver)
{
    ReadTheLayer();
    edits.style.lsSet(Slot::Locked, true);
    ApplyLayerStyle(host, 17, edits);
    EXPECT_THAT(host.Log().CallsTo("SetField"), testing::Contains("SetField(Priority, 7)"));
    EXPECT_TRUE(host.Log().CallsTo("StoredScaleToDialog").isEmpty()) << "the row was not read again";
}

TEST_F(ChangedMeanwhile, AnEditedValueIsAConflictAndNothingIsWritten)
{
    ReadTheLayer();
    host.SetLayerColumn(17, "Priority", qint32(9));
    edits.style.lsSet(Slot::DrawPriority, 12);
    edits.style.lsSet(Slot::Locked, true);
    const ApplyResult result = ApplyLayerStyle(host, 17, edits);
    ASSERT_EQ(result.conflicts.size(), 1U);
    EXPECT_EQ(result.conflicts[0].slot, Slot::DrawPriority);
    EXPECT_THAT(result.conflicts[0].stored, IsNumber(9));
    EXPECT_EQ(result.layers, 0);
    EXPECT_THAT(Get(17, "locked"), IsFlag(false));
    edits.overwrites = true;
    EXPECT_TRUE(ApplyLayerStyle(host, 17, edits).conflicts.empty());
    EXPECT_THAT(Get(17, "Priority"), IsNumber(12));
}

TEST_F(ChangedMeanwhile, TheSameEditOfBothIsNoConflict)
{
    ReadTheLayer();
    host.SetLayerColumn(17, "Priority", qint32(12));
    edits.style.lsSet(Slot::DrawPriority, 12);
    EXPECT_TRUE(ApplyLayerStyle(host, 17, edits).conflicts.empty());
}

TEST_F(ChangedMeanwhile, AModeIsComparedLikeAProperty)
{
    ReadTheLayer();
    host.SetLayerColumn(17, "OverrideMode", qint32(2));
    ApplyLayerStyle(host, 17, edits);
    EXPECT_THAT(Get(17, "OverrideMode"), IsNumber(2)) << "it was not edited";
    edits.quickMode = QuickMode::Backdrop;
    const ApplyResult result = ApplyLayerStyle(host, 17, edits);
    ASSERT_EQ(result.conflicts.size(), 1U);
    EXPECT_EQ(result.conflicts[0].slot, EditConflict::Mode);
}

TEST_F(ChangedMeanwhile, ACodeThatChangedIsReported)
{
    ReadTheLayer();
    EXPECT_FALSE(ApplyLayerStyle(host, 17, edits).isCodeChanged);
    ReadTheLayer();
    host.SetLayerColumn(17, "Code", qint32(70));
    EXPECT_TRUE(ApplyLayerStyle(host, 17, edits).isCodeChanged);
}

TEST_F(ChangedMeanwhile, AGroupWithAConflictIsLeftAsItIsAndItsLayersAreCounted)
{
    ReadTheGroup();
    host.SetLayerColumn(17, "Priority", qint32(8));
    host.SetLayerColumn(18, "Priority", qint32(9));
    edits.style.lsSet(Slot::DrawPriority, 12);
    const ApplyResult result = ApplyGroupStyle(host, 3, edits);
    ASSERT_EQ(result.conflicts.size(), 1U);
    EXPECT_EQ(result.conflicts[0].layers, 2);
    EXPECT_THAT(Get(17, "Priority"), IsNumber(8));
    EXPECT_THAT(Get(18, "Priority"), IsNumber(9));
}

TEST_F(ChangedMeanwhile, AMemberThatChangedKeepsItsNewValueWhereItWasNotEdited)
{
    ReadTheGroup();
    host.SetLayerColumn(18, "FillStyle", qint32(5));
    edits.style.lsSet(Slot::DrawPriority, 12);
    EXPECT_EQ(ApplyGroupStyle(host, 3, edits).layers, 2);
    EXPECT_THAT(Get(18, "FillStyle"), IsNumber(5));
    EXPECT_THAT(Get(18, "Priority"), IsNumber(12));
    EXPECT_THAT(Get(17, "FillStyle"), IsNumber(3));
}
