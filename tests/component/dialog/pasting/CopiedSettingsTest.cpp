// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/CopiedSettings.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

CopiedSettings Everything()
{
    CopiedSettings all;
    for (const SlotColumn& flag : FlagColumns)
        all.style.lsSet(flag.slot, flag.slot != Slot::Locked);
    all.style.lsSet(Slot::UseForSymbols, true);
    all.style.lsSet(Slot::LineColour, qint32(0x332211));
    all.style.lsSet(Slot::FillForeColour, qint32(0xFF8000));
    all.style.lsSet(Slot::FillBackColour, TransparentColour);
    all.style.lsSet(Slot::OutlineStyle, qint32(0));
    all.style.lsSet(Slot::LineThickness, qint32(-3));
    all.style.lsSet(Slot::FillStyle, qint32(15));
    all.style.lsSet(Slot::DrawPriority, qint32(7));
    all.quickMode = QuickMode::Backdrop;
    all.scales = {5000, 0};
    all.rendererStyle = {7, QStringLiteral("Hatched")};
    return all;
}

QByteArray WithSettings(const QByteArray& settings, int version = 1)
{
    return R"({"format":"layer settings","version":)" + QByteArray::number(version) + R"(,"settings":{)"
        + settings + "}}";
}

CopiedSettings ReadFrom(const QByteArray& settings)
{
    return CopiedSettings::FromBytes(WithSettings(settings)).value();
}

bool IsLeftOut(const QByteArray& settings)
{
    return ReadFrom(settings).IsEmpty();
}

} // namespace

TEST(CopiedSettingsTest, AreReadAsTheyWereWritten)
{
    const CopiedSettings all = Everything();
    const std::optional<CopiedSettings> read = CopiedSettings::FromBytes(all.ToBytes());
    ASSERT_TRUE(read);
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot)
        EXPECT_TRUE(read->style.Compare(slot, all.style.lsGet(slot))) << slot;
    EXPECT_EQ(read->quickMode, QuickMode::Backdrop);
    ASSERT_TRUE(read->scales);
    EXPECT_EQ(read->scales->minimum, 5000);
    EXPECT_EQ(read->scales->maximum, 0);
    ASSERT_TRUE(read->rendererStyle);
    EXPECT_EQ(read->rendererStyle->number, 7);
    EXPECT_EQ(read->rendererStyle->name, "Hatched");
}

TEST(CopiedSettingsTest, HoldOnlyWhatIsKnown)
{
    CopiedSettings copied;
    EXPECT_TRUE(copied.IsEmpty());
    copied.style.lsSet(Slot::Visible, false);
    EXPECT_FALSE(copied.IsEmpty());
    EXPECT_EQ(copied.ToBytes(), R"({"format":"layer settings","settings":{"visible":false},"version":1})");
}

TEST(CopiedSettingsTest, NeverHoldNameOrCode)
{
    CopiedSettings copied;
    copied.style.lsSet(Slot::Name, QStringLiteral("Roads"));
    copied.style.lsSet(Slot::Code, qint32(11));
    EXPECT_TRUE(CopiedSettings::FromBytes(copied.ToBytes())->IsEmpty());
}

TEST(CopiedSettingsTest, AreNotReadFromOtherContentOrANewerVersion)
{
    for (const char* bytes : {"", "Roads", "[]", "{}", R"({"version":1,"settings":{"visible":true}})"})
        EXPECT_FALSE(CopiedSettings::FromBytes(bytes)) << bytes;
    EXPECT_TRUE(CopiedSettings::FromBytes(WithSettings(R"("visible":true)", 1)));
    EXPECT_FALSE(CopiedSettings::FromBytes(WithSettings(R"("visible":true)", 2)));
    EXPECT_FALSE(CopiedSettings::FromBytes(WithSettings(R"("visible":true)", 0)));
}

TEST(CopiedSettingsTest, AreNotReadFromMoreBytesThanTheyCanHave)
{
    const QByteArray settings = R"("visible":true)";
    EXPECT_TRUE(CopiedSettings::FromBytes(WithSettings(settings + QByteArray(60'000, ' '))));
    EXPECT_FALSE(CopiedSettings::FromBytes(WithSettings(settings + QByteArray(70'000, ' '))));
}

TEST(CopiedSettingsTest, LeaveOutValuesThatNoPanelCouldShow)
{
    for (const char* wrong :
         {R"("visible":1)",
          R"("lineColour":"transparent")",
          R"("lineColour":"red")",
          R"("fillColour":"#12345")",
          R"("fillColour":"#0x1234")",
          R"("fillStyle":32)",
          R"("fillStyle":-1)",
          R"("fillStyle":1.5)",
          R"("fillStyle":"3")",
          R"("drawPriority":32768)",
          R"("lineStyle":{"pattern":2})",
          R"("lineStyle":{"pattern":20,"width":0})",
          R"("lineStyle":{"pattern":0,"width":2000})",
          R"("visibleScales":{"minimum":-1,"maximum":0})",
          R"("visibleScales":{"minimum":5000})",
          R"("visibleScales":{"minimum":1e300,"maximum":0})",
          R"("style":{"number":7})",
          R"("style":{"name":"Hatched"})",
          R"("mode":"glowing")",
          R"("unknown":true)"})
        EXPECT_TRUE(IsLeftOut(wrong)) << wrong;
}

TEST(CopiedSettingsTest, KeepTheOtherValuesBesideAWrongOne)
{
    const CopiedSettings read = ReadFrom(R"("fillStyle":99,"lineColour":"#112233")");
    EXPECT_TRUE(read.style.lsIsNull(Slot::FillStyle));
    EXPECT_EQ(ToInt32(read.style.lsGet(Slot::LineColour)), 0x332211);
}

} // namespace Orvane::Testing
