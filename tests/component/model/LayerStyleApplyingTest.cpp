// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleApplying.h"

#include "component/model/ApplyingVocabulary.h"
#include "component/model/LayerStyleLoading.h"
#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/PatchingClient.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr qint16 variousMode = 0;

SelectedRendererStyle Selects(qint32 number)
{
    return [number] { return Value(number); };
}

/// Gives one stored scale for every index.
class OneScaleClient : public ForwardingClient
{
public:
    OneScaleClient(IStyleEditorClient& client, double scale) : ForwardingClient(client), m_scale(scale) { }

protected:
    double IStyleEditorClient_DialogScaleToStored(qint32) const override { return m_scale; }

private:
    double m_scale;
};

class ApplyLayerStyleTo : public testing::Test
{
protected:
    void Apply(const LayerStyle& style, qint16 quickMode = variousMode)
    {
        ApplyLayerStyle(host, 17, {style, quickMode, NoSelectedStyle});
    }

    /// What applying wrote, as "SetField(column, value)".
    QStringList Writes() const { return host.Log().CallsTo("SetField"); }

    MemoryHost host;
};

} // namespace

TEST_F(ApplyLayerStyleTo, EverythingIsWrittenInItsOrder)
{
    host.AddLayer({.id = 17});
    ApplyLayerStyle(host, 17, {FullStyle(), 4, Selects(8)});
    EXPECT_THAT(
        host.Log().Trace(),
        ElementsAre(
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 17)", "BeginLayerEdit()", "Edit()",
            "SetField(OverrideMode, 2)", "SetField(Visible, False)", "SetField(Selectable, False)",
            "SetField(locked, True)", "SetField(Hitable, False)", "SetField(SnapRequired, True)",
            "SetField(Enquirable, False)", "SetField(FillForeColor, 1)", "SetField(FillBackColor, 2)",
            "SetField(Color, -16776961)", "SetField(OutlineStyle, 3)", "SetField(FillStyle, 4)",
            "SetField(LineThickness, -5)", "DialogScaleToStored(6)", "SetField(MinVisScale, 6000)",
            "DialogScaleToStored(7)", "SetField(MaxVisScale, 7000)", "SetField(Priority, 9)",
            "SetField(Style, 8)", "LayerChanged(17)", "Update()"));
}

TEST_F(ApplyLayerStyleTo, AScaleThatWasNotEditedStaysAsItIsStored)
{
    host.AddLayer({.id = 17, .minVisScale = 500.5, .maxVisScale = 25300.0});
    LayerStyle style;
    LoadLayerStyle(host, 17, style);
    const LayerStyle asRead = style;
    ApplyLayerStyle(host, 17, {style, 0, NoSelectedStyle, asRead});
    EXPECT_THAT(host.LayerColumn(17, "MinVisScale"), IsNumber(500.5));
    EXPECT_THAT(host.LayerColumn(17, "MaxVisScale"), IsNumber(25300));
    style.lsSet(Slot::MinVisScale, 2);
    ApplyLayerStyle(host, 17, {style, 0, NoSelectedStyle, asRead});
    EXPECT_THAT(host.LayerColumn(17, "MinVisScale"), IsNumber(2000));
}

TEST_F(ApplyLayerStyleTo, WhatIsReadBackIsWhatWasApplied)
{
    host.AddLayer({.id = 17, .name = "Roads", .code = 3});
    ApplyLayerStyle(host, 17, {FullStyle(), 4, Selects(8)});
    LayerStyle read;
    LoadLayerStyle(host, 17, read);
    for (qint16 slot = Slot::Visible; slot < LayerStyle::SlotCount; ++slot)
        EXPECT_TRUE(read.Compare(slot, FullStyle().lsGet(slot))) << slot;
}

TEST_F(ApplyLayerStyleTo, NameAndCodeAreNeverWritten)
{
    host.AddLayer({.id = 17, .name = "Roads", .code = 3});
    Apply(FullStyle());
    EXPECT_THAT(host.LayerColumn(17, "Name"), IsValue(QStringLiteral("Roads")));
    EXPECT_THAT(host.LayerColumn(17, "Code"), IsNumber(3));
}

TEST_F(ApplyLayerStyleTo, AnAllNullRecordWritesNothingButStillTellsTheHostAndUpdates)
{
    host.AddLayer({.id = 17});
    Apply(LayerStyle());
    EXPECT_THAT(
        host.Log().Trace(),
        ElementsAre(
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 17)", "BeginLayerEdit()", "Edit()",
            "LayerChanged(17)", "Update()"));
}

TEST_F(ApplyLayerStyleTo, OnlyKnownSlotsAreWritten)
{
    host.AddLayer({.id = 17});
    Apply(StyleWith({{Slot::Hitable, false}, {Slot::DrawPriority, qint32(9)}}));
    EXPECT_THAT(Writes(), ElementsAre("SetField(Hitable, False)", "SetField(Priority, 9)"));
}

TEST_F(ApplyLayerStyleTo, AMissingLayerIsLeftAlone)
{
    ApplyLayerStyle(host, 99, {FullStyle(), 4, Selects(8)});
    EXPECT_THAT(host.Log().Trace(), ElementsAre("LayersTable()", "Index(LayerIDIDX)", "Seek(=, 99)"));
}

TEST_F(ApplyLayerStyleTo, TheThreeQuickModesAreStored)
{
    host.AddLayer({.id = 17, .overrideMode = 7});
    for (const auto& [mode, stored] : {std::pair<qint16, int>{1, 0}, {2, 1}, {4, 2}}) {
        Apply(LayerStyle(), mode);
        EXPECT_THAT(host.LayerColumn(17, "OverrideMode"), IsNumber(stored));
    }
}

TEST_F(ApplyLayerStyleTo, AnyOtherQuickModeLeavesTheRows)
{
    host.AddLayer({.id = 17, .overrideMode = 2});
    for (const qint16 mode : {0, 3, 5, 7, -1}) {
        Apply(LayerStyle(), mode);
        EXPECT_THAT(host.LayerColumn(17, "OverrideMode"), IsNumber(2)) << mode;
    }
    EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(ApplyLayerStyleTo, AColourAloneKeepsTheRowsSymbolFlag)
{
    host.AddLayer({.id = 17, .color = redNotForSymbols});
    Apply(StyleWith({{Slot::LineColour, qint32(0x00FF00)}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(qint32(0xFF00FF00U)));
}

TEST_F(ApplyLayerStyleTo, AColourAloneKeepsASetSymbolFlagToo)
{
    host.AddLayer({.id = 17, .color = 0x0000FF});
    Apply(StyleWith({{Slot::LineColour, qint32(0x00FF00)}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(0x00FF00));
}

TEST_F(ApplyLayerStyleTo, ASymbolFlagAloneKeepsTheRowsColour)
{
    host.AddLayer({.id = 17, .color = redNotForSymbols});
    Apply(StyleWith({{Slot::UseForSymbols, true}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(0xFF));
    Apply(StyleWith({{Slot::UseForSymbols, false}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(redNotForSymbols));
}

TEST_F(ApplyLayerStyleTo, ColourAndFlagTogetherReplaceBoth)
{
    host.AddLayer({.id = 17, .color = redNotForSymbols});
    Apply(StyleWith({{Slot::LineColour, qint32(0x112233)}, {Slot::UseForSymbols, true}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(0x112233));
}

TEST_F(ApplyLayerStyleTo, ARowWithoutColourCountsAsBlackUsedForSymbols)
{
    host.AddLayer({.id = 17, .color = Value::Null()});
    Apply(StyleWith({{Slot::LineColour, qint32(0x112233)}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(0x112233));
    host.SetLayerColumn(17, "Color", Value::Null());
    Apply(StyleWith({{Slot::UseForSymbols, false}}));
    EXPECT_THAT(host.LayerColumn(17, "Color"), IsNumber(qint32(0xFF000000U)));
}

TEST_F(ApplyLayerStyleTo, TheMinimumScaleIsStoredAsItComesAndTheMaximumAsAWholeNumber)
{
    host.AddLayer({.id = 17});
    OneScaleClient client(host, 2500.5);
    ApplyLayerStyle(
        client, 17,
        {StyleWith({{Slot::MinVisScale, qint32(3)}, {Slot::MaxVisScale, qint32(3)}}), 0, NoSelectedStyle});
    EXPECT_THAT(host.LayerColumn(17, "MinVisScale"), IsNumber(2500.5));
    EXPECT_THAT(host.LayerColumn(17, "MaxVisScale"), IsNumber(2500));
    EXPECT_THAT(host.Log().LastWritten("MinVisScale"), IsValue(2500.5));
    EXPECT_THAT(host.Log().LastWritten("MaxVisScale"), IsValue(qint32(2500)));
}

TEST_F(ApplyLayerStyleTo, AHalfInTheMaximumScaleGoesToTheEvenNeighbour)
{
    host.AddLayer({.id = 17});
    OneScaleClient client(host, 2501.5);
    ApplyLayerStyle(client, 17, {StyleWith({{Slot::MaxVisScale, qint32(3)}}), 0, NoSelectedStyle});
    EXPECT_THAT(host.Log().LastWritten("MaxVisScale"), IsValue(qint32(2502)));
}

TEST_F(ApplyLayerStyleTo, AMaximumScaleBeyond32BitsRaisesOverflowAndStoresNothing)
{
    host.AddLayer({.id = 17, .visible = true, .maxVisScale = 7000.0});
    OneScaleClient client(host, 1e12);
    const LayerStyle style = StyleWith({{Slot::Visible, false}, {Slot::MaxVisScale, qint32(3)}});
    const int number = ErrorOf([&] { ApplyLayerStyle(client, 17, {style, 0, NoSelectedStyle}); });
    EXPECT_EQ(number, overflowError);
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(true));
    EXPECT_THAT(host.Log().CallsTo("LayerChanged"), IsEmpty());
}

TEST_F(ApplyLayerStyleTo, TheRendererStyleComesFromTheListAtThatMomentAndNotFromTheRecord)
{
    host.AddLayer({.id = 17});
    qint32 selected = 1;
    const auto list = [&] { return Value(selected); };
    selected = 5;
    ApplyLayerStyle(host, 17, {StyleWith({{Slot::RendererStyle, qint32(8)}}), 0, list});
    EXPECT_THAT(host.Log().LastWritten("Style"), IsValue(qint32(5)));
}

TEST_F(ApplyLayerStyleTo, TheListIsNotAskedWhenTheRecordsStyleIsVarious)
{
    host.AddLayer({.id = 17, .style = 2});
    const auto list = []() -> Value {
        ADD_FAILURE() << "asked";
        return qint32(1);
    };
    ApplyLayerStyle(host, 17, {StyleWith({{Slot::Visible, true}}), 0, list});
    EXPECT_THAT(host.LayerColumn(17, "Style"), IsNumber(2));
}

TEST_F(ApplyLayerStyleTo, AListWithoutSelectionLeavesTheRowsStyle)
{
    host.AddLayer({.id = 17, .style = 2});
    Apply(StyleWith({{Slot::RendererStyle, qint32(8)}}));
    EXPECT_THAT(host.LayerColumn(17, "Style"), IsNumber(2));
}

TEST_F(ApplyLayerStyleTo, TheHostIsToldOfTheRowsOwnID)
{
    host.AddLayer({.id = 17});
    PatchingClient client(host, {{"LayerID", qint32(1017)}});
    ApplyLayerStyle(client, 17, {LayerStyle(), 0, NoSelectedStyle});
    EXPECT_THAT(host.Log().CallsTo("LayerChanged"), ElementsAre("LayerChanged(1017)"));
}

TEST_F(ApplyLayerStyleTo, ATextOrNothingInASlotRaisesTypeMismatchAndStoresNothing)
{
    host.AddLayer({.id = 17, .visible = true});
    for (qint16 slot = Slot::Selectable; slot < LayerStyle::SlotCount; ++slot) {
        for (const Value& bad : {Value(QStringLiteral("red")), Value()}) {
            const LayerStyle style = StyleWith({{Slot::Visible, false}, {slot, bad}});
            const auto list = [&] { return bad; };
            const int number = ErrorOf([&] { ApplyLayerStyle(host, 17, {style, 0, list}); });
            EXPECT_EQ(number, typeMismatchError) << slot;
        }
    }
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(true));
}

TEST_F(ApplyLayerStyleTo, NothingIsStoredWhenTheHostRefusesTheChange)
{
    host.AddLayer({.id = 17, .visible = true});
    FailingClient client(host, {"LayerChanged", 1, RunTimeError(10009, "frozen", "host")});
    const LayerStyle style = StyleWith({{Slot::Visible, false}});
    const auto error = RaisedBy([&] { ApplyLayerStyle(client, 17, {style, 0, NoSelectedStyle}); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 10009);
    EXPECT_EQ(error->Source(), "host");
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(true));
}

TEST_F(ApplyLayerStyleTo, NoRedrawIsAskedFor)
{
    host.AddLayer({.id = 17});
    Apply(FullStyle());
    EXPECT_THAT(host.Log().CallsTo("RedrawMap"), IsEmpty());
}
