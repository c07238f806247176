// SPDX-License-Identifier: MIT
#include "component/model/LayerCode.h"

#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;

TEST(LeadingNumber, IsTheNumberWithWhichTheTextBegins)
{
    EXPECT_EQ(LeadingNumber("12"), 12);
    EXPECT_EQ(LeadingNumber("12abc"), 12);
    EXPECT_EQ(LeadingNumber("12 34"), 12);
    EXPECT_EQ(LeadingNumber("1.5.7"), 1.5);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("5."), 5);
    EXPECT_EQ(LeadingNumber("12-3"), 12);
    EXPECT_EQ(LeadingNumber("007"), 7);
}

TEST(LeadingNumber, TakesASignAndSkipsBlanksBeforeIt)
{
    EXPECT_EQ(LeadingNumber("-5"), -5);
    EXPECT_EQ(LeadingNumber("+5"), 5);
    EXPECT_EQ(LeadingNumber("  -5 "), -5);
    EXPECT_EQ(LeadingNumber("--5"), 0);
}

TEST(LeadingNumber, TakesAnExponentOnlyWhenItIsWhole)
{
    EXPECT_EQ(LeadingNumber("1e3"), 1000);
    EXPECT_EQ(LeadingNumber("1e"), 1);
    EXPECT_EQ(LeadingNumber("2ex"), 2);
}

TEST(LeadingNumber, IsZeroWhereThereIsNone)
{
    for (const char* text : {"", " ", "abc", "-", "+", ".", "-x", "inf", "nan", "-inf", "e5", "١٢"})
        EXPECT_EQ(LeadingNumber(QString::fromUtf8(text)), 0) << text;
}

TEST(LeadingNumber, NeverReadsTheCommaAsSeparator)
{
    EXPECT_EQ(LeadingNumber("1,5"), 1);
}

TEST(LeadingNumber, RaisesOverflowBeyondADouble)
{
    EXPECT_EQ(ErrorOf([] { LeadingNumber("1e999"); }), overflowError);
}

TEST(SetLayerCode, StoresTheNumberAsADouble)
{
    MemoryHost host;
    host.AddLayer({.id = 17, .code = 3});
    SetLayerCode(host, 17, QStringLiteral("12abc"));
    EXPECT_THAT(host.LayerColumn(17, "Code"), IsNumber(12));
    EXPECT_THAT(host.Log().LastWritten("Code"), IsValue(12.0));
}

TEST(SetLayerCode, StoresZeroForAnEmptyText)
{
    MemoryHost host;
    host.AddLayer({.id = 17, .code = 3});
    SetLayerCode(host, 17, QString());
    EXPECT_THAT(host.LayerColumn(17, "Code"), IsNumber(0));
}

TEST(SetLayerCode, BeginsTheEditThroughTheHostAndTellsNothingElse)
{
    MemoryHost host;
    host.AddLayer({.id = 17});
    SetLayerCode(host, 17, QStringLiteral("12"));
    EXPECT_THAT(
        host.Log().Trace(),
        ElementsAre(
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 17)", "BeginLayerEdit()", "Edit()",
            "SetField(Code, 12)", "Update()"));
}

TEST(SetLayerCode, LeavesAMissingLayerOut)
{
    MemoryHost host;
    SetLayerCode(host, 17, QStringLiteral("12"));
    EXPECT_THAT(host.Log().Trace(), ElementsAre("LayersTable()", "Index(LayerIDIDX)", "Seek(=, 17)"));
}

TEST(SetLayerCode, PassesADatabaseErrorOnAndStoresNothing)
{
    MemoryHost host;
    host.AddLayer({.id = 17, .code = 3});
    FailingClient client(host, {"Update", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked", "store")});
    const auto error = RaisedBy([&] { SetLayerCode(client, 17, QStringLiteral("12")); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), int(ErrorNumber::DatabaseLocked));
    EXPECT_EQ(error->Description(), "locked");
    EXPECT_EQ(error->Source(), "store");
    EXPECT_THAT(host.LayerColumn(17, "Code"), IsNumber(3));
}
