// SPDX-License-Identifier: MIT
#include "component/model/LayerStyle.h"

#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;

namespace {

bool SameSlots(const LayerStyle& left, const LayerStyle& right)
{
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot) {
        if (!left.lsGet(slot).IsIdenticalTo(right.lsGet(slot)))
            return false;
    }
    return true;
}

} // namespace

TEST(LayerStyle, HasNineteenNullSlotsWhenNew)
{
    const LayerStyle style;
    ASSERT_EQ(LayerStyle::SlotCount, 19);
    for (qint16 slot = 0; slot < 19; ++slot) {
        EXPECT_TRUE(style.lsIsNull(slot)) << slot;
        EXPECT_THAT(style.lsGet(slot), IsNullValue()) << slot;
        EXPECT_TRUE(style.Compare(slot, Value::Null())) << slot;
    }
}

TEST(LayerStyle, GivesBackWhatWasSetInItsOwnKind)
{
    LayerStyle style;
    style.lsSet(Slot::Name, QStringLiteral("Roads"));
    style.lsSet(Slot::LineThickness, qint16(-3));
    EXPECT_THAT(style.lsGet(0), IsValue(QStringLiteral("Roads")));
    EXPECT_THAT(style.lsGet(14), IsValue(qint16(-3)));
}

TEST(LayerStyle, SettingOneSlotLeavesTheOthers)
{
    LayerStyle style;
    style.lsSet(Slot::Visible, true);
    for (qint16 slot = 0; slot < 19; ++slot)
        EXPECT_EQ(style.lsIsNull(slot), slot != Slot::Visible) << slot;
}

TEST(LayerStyle, CanForgetAValueAgain)
{
    LayerStyle style;
    style.lsSet(Slot::Code, qint32(7));
    style.lsSet(Slot::Code, Value::Null());
    EXPECT_TRUE(style.lsIsNull(Slot::Code));
}

TEST(LayerStyle, AnEmptyValueIsNotNullAndEqualsNothing)
{
    LayerStyle style;
    style.lsSet(Slot::Visible, Value());
    EXPECT_FALSE(style.lsIsNull(Slot::Visible));
    EXPECT_FALSE(style.Compare(Slot::Visible, Value()));
    EXPECT_FALSE(style.Compare(Slot::Visible, Value::Null()));
}

TEST(LayerStyle, AKnownValueIsNotEqualToNull)
{
    LayerStyle style;
    style.lsSet(Slot::DrawPriority, qint32(5));
    EXPECT_FALSE(style.Compare(Slot::DrawPriority, Value::Null()));
}

TEST(LayerStyle, ANullSlotIsNotEqualToAKnownValue)
{
    EXPECT_FALSE(LayerStyle().Compare(Slot::DrawPriority, qint32(0)));
}

TEST(LayerStyle, NumbersCompareAcrossTheirKinds)
{
    LayerStyle style;
    style.lsSet(Slot::DrawPriority, qint32(5));
    style.lsSet(Slot::FillStyle, 5.0);
    for (const qint16 slot : {Slot::DrawPriority, Slot::FillStyle}) {
        EXPECT_TRUE(style.Compare(slot, qint32(5)));
        EXPECT_TRUE(style.Compare(slot, qint16(5)));
        EXPECT_TRUE(style.Compare(slot, 5.0));
        EXPECT_TRUE(style.Compare(slot, 5.0F));
        EXPECT_FALSE(style.Compare(slot, 5.5));
    }
}

TEST(LayerStyle, TextsCompareAsTexts)
{
    LayerStyle style;
    style.lsSet(Slot::Name, QStringLiteral("A"));
    EXPECT_TRUE(style.Compare(Slot::Name, QStringLiteral("A")));
    EXPECT_FALSE(style.Compare(Slot::Name, QStringLiteral("a")));
}

TEST(LayerStyle, ADisagreementBecomesNullAndANullInTheOtherRecordErasesNothing)
{
    LayerStyle own;
    own.lsSet(Slot::Visible, true);
    own.lsSet(Slot::DrawPriority, qint32(3));
    own.lsSet(Slot::Name, QStringLiteral("A"));
    LayerStyle other;
    other.lsSet(Slot::Visible, true);
    other.lsSet(Slot::DrawPriority, qint32(4));
    own.Intersect(other);
    EXPECT_THAT(own.lsGet(Slot::Visible), IsValue(true));
    EXPECT_THAT(own.lsGet(Slot::DrawPriority), IsNullValue());
    EXPECT_THAT(own.lsGet(Slot::Name), IsValue(QStringLiteral("A")));
}

TEST(LayerStyle, AVariousSlotStaysVarious)
{
    LayerStyle own;
    LayerStyle other;
    other.lsSet(Slot::DrawPriority, qint32(4));
    own.Intersect(other);
    EXPECT_TRUE(own.lsIsNull(Slot::DrawPriority));
}

TEST(LayerStyle, TheSameNumberInAnotherKindIsNoDisagreement)
{
    LayerStyle own;
    own.lsSet(Slot::DrawPriority, qint32(4));
    LayerStyle other;
    other.lsSet(Slot::DrawPriority, 4.0);
    own.Intersect(other);
    EXPECT_THAT(own.lsGet(Slot::DrawPriority), IsValue(qint32(4)));
}

TEST(LayerStyle, IntersectingLeavesTheOtherRecordAlone)
{
    LayerStyle own;
    own.lsSet(Slot::DrawPriority, qint32(3));
    LayerStyle other;
    other.lsSet(Slot::DrawPriority, qint32(4));
    own.Intersect(other);
    EXPECT_THAT(other.lsGet(Slot::DrawPriority), IsValue(qint32(4)));
}

TEST(LayerStyle, IntersectingWithItselfChangesNothing)
{
    LayerStyle style;
    for (qint16 slot = 0; slot < 19; slot += 2)
        style.lsSet(slot, qint32(slot));
    const LayerStyle before = style;
    style.Intersect(style);
    EXPECT_TRUE(SameSlots(style, before));
}

TEST(LayerStyle, EverySlotTakesPartInTheIntersection)
{
    for (qint16 slot = 0; slot < 19; ++slot) {
        LayerStyle own;
        own.lsSet(slot, qint32(1));
        LayerStyle other;
        other.lsSet(slot, qint32(2));
        own.Intersect(other);
        EXPECT_TRUE(own.lsIsNull(slot)) << slot;
    }
}

TEST(LayerStyle, AnIndexOutsideRaisesTheSubscriptErrorInEveryMember)
{
    LayerStyle style;
    for (const qint16 index : {qint16(19), qint16(-1), qint16(32767), qint16(-32768)}) {
        EXPECT_EQ(ErrorOf([&] { style.lsGet(index); }), subscriptError) << index;
        EXPECT_EQ(ErrorOf([&] { style.lsIsNull(index); }), subscriptError) << index;
        EXPECT_EQ(ErrorOf([&] { style.Compare(index, qint32(1)); }), subscriptError) << index;
        EXPECT_EQ(ErrorOf([&] { style.lsSet(index, qint32(1)); }), subscriptError) << index;
    }
}

TEST(LayerStyle, ARefusedIndexLeavesTheRecordUnchanged)
{
    LayerStyle style;
    style.lsSet(18, qint32(5));
    const LayerStyle before = style;
    EXPECT_THROW(style.lsSet(19, qint32(1)), RunTimeError);
    EXPECT_TRUE(SameSlots(style, before));
}

TEST(LayerStyle, IntersectingWithItselfKeepsAnEmptySlot)
{
    LayerStyle style;
    style.lsSet(0, Value());
    style.lsSet(1, qint32(5));
    const LayerStyle before = style;
    style.Intersect(style);
    EXPECT_TRUE(style.lsGet(0).IsEmpty());
    EXPECT_TRUE(SameSlots(style, before));
}
