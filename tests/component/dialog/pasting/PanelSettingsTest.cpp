// SPDX-License-Identifier: MIT
// Copied settings in the numbers of a host that has other styles and scales.
#include "component/dialog/pasting/PastingFixture.h"

namespace Orvane::Testing {

namespace {

using PanelSettingsTest = PastingFixture;

TEST_F(PanelSettingsTest, ShowsAStyleThatTheMapDoesNotHaveButDoesNotOfferIt)
{
    PutOnClipboard(R"({"format":"layer settings","version":1,"settings":)"
                   R"({"visible":false,"style":{"number":7,"name":"Dotted"}}})");
    PasteInto({"Roads"}, [this] {
        ASSERT_TRUE(Row("Style"));
        EXPECT_EQ(Row("Style")->text(1), "Dotted");
        EXPECT_EQ(Row("Style")->toolTip(0), "This map has no style of that name.");
        EXPECT_TRUE(Row("Style")->isDisabled());
        Press("cmdAll");
        Press("cmdPaste");
    });
    EXPECT_EQ(Stored(1, "Style"), 0);
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(PanelSettingsTest, FindsAStyleOfAnotherProgramByItsName)
{
    PutOnClipboard(
        R"({"format":"layer settings","version":1,"settings":{"style":{"number":70,"name":"Sketched"}}})");
    PasteInto({"Roads"}, [this] { Press("cmdPaste"); });
    EXPECT_EQ(Stored(1, "Style"), 9);
}

TEST_F(PanelSettingsTest, FindsAStyleByItsNumberAmongSeveralOfOneName)
{
    host.rendererStyles = {{7, "Hatched"}, {9, "Hatched"}, {11, "Hatched"}};
    Close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Open();
    host.SetLayerColumn(2, "Style", qint32(9));
    Copy("Rivers");
    PasteInto({"Roads"}, [this] { PasteOnly("Style"); });
    EXPECT_EQ(Stored(1, "Style"), 9);
    PutOnClipboard(
        R"({"format":"layer settings","version":1,"settings":{"style":{"number":70,"name":"Hatched"}}})");
    PasteInto({"Roads"}, [this] { Press("cmdPaste"); });
    EXPECT_EQ(Stored(1, "Style"), 7);
}

TEST_F(PanelSettingsTest, ShowsScalesThatAreAnEmptyRangeButDoesNotOfferThem)
{
    PutOnClipboard(R"({"format":"layer settings","version":1,"settings":)"
                   R"({"visibleScales":{"minimum":20000,"maximum":5000}}})");
    PasteInto({"Roads"}, [this] {
        ASSERT_TRUE(Row("Visible Scale Range"));
        EXPECT_EQ(Row("Visible Scale Range")->text(1), "1:20000 to 1:5000");
        EXPECT_EQ(
            Row("Visible Scale Range")->toolTip(1), "With the scales of this map, this range is empty.");
        EXPECT_TRUE(Row("Visible Scale Range")->isDisabled());
        Press("cmdAll");
        EXPECT_FALSE(CanPaste());
    });
    EXPECT_EQ(Stored(1, "MinVisScale"), 0);
}

TEST_F(PanelSettingsTest, TakesTheNearestScalesAndLeavesNoLimitAsItIs)
{
    PutOnClipboard(R"({"format":"layer settings","version":1,"settings":)"
                   R"({"visibleScales":{"minimum":5400,"maximum":0}}})");
    PasteInto({"Rivers"}, [this] { Press("cmdPaste"); });
    EXPECT_EQ(Stored(2, "MinVisScale"), 5000);
    EXPECT_EQ(Stored(2, "MaxVisScale"), 0);
}

} // namespace

} // namespace Orvane::Testing
