// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"
#include "hosts/ValueMatchers.h"
#include "mapkit/canvas/MapCanvas.h"
#include "soak/SoakSize.h"
#include "soak/UsageTrend.h"

namespace Orvane::Testing {

namespace {

using testing::IsEmpty;

class WindowSoak : public TownWindow
{
protected:
    MapCanvas& Canvas() { return *m_window->findChild<MapCanvas*>(); }

    /// Drawing begins a moment after the view has changed.
    void WaitForThePicture()
    {
        const MapPicture& picture = Canvas().Picture();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return !picture.IsBusy() && picture.ImageView() == Canvas().View(); }, 60'000));
    }

    void UseTheMap()
    {
        OpenLayerControl();
        ClickTab(Form(), 2);
        SwitchVisible("Fields");
        ClickTab(Form(), 1);
        Form()->close();
        Canvas().ZoomIn();
        WaitForThePicture();
        Trigger("actUndo");
        Canvas().ZoomToAll();
        WaitForThePicture();
    }

    void Measure()
    {
        WaitForThePicture();
        m_trend.Add(MeasureUsage());
    }

    void ExpectFlat(const char* title) const
    {
        m_trend.Print(title);
        EXPECT_THAT(m_trend.Growths(), IsEmpty());
    }

    UsageTrend m_trend;
};

TEST_F(WindowSoak, WorkingOnOneMapNeedsNoMoreAndMore)
{
    for (int round = 0; round < SoakRounds(); ++round) {
        UseTheMap();
        Measure();
    }
    ExpectFlat("Rounds of work on one map in Orvane");
}

TEST_F(WindowSoak, OpeningMapsInOneWindowNeedsNoMoreAndMore)
{
    for (int round = 0; round < SoakRounds(); ++round) {
        m_window->OpenMap(MapPath());
        UseTheMap();
        Measure();
    }
    ExpectFlat("Openings of a map in one window of Orvane");
}

} // namespace

} // namespace Orvane::Testing
