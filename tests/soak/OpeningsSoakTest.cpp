// SPDX-License-Identifier: MIT
#include "hosts/ValueMatchers.h"
#include "soak/PluginHost.h"
#include "soak/SoakSize.h"
#include "soak/UsageTrend.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::IsEmpty;

class OpeningsSoak : public testing::Test
{
protected:
    /// Prints and judges what was used.
    void ExpectFlat(const char* title) const
    {
        m_trend.Print(title);
        EXPECT_THAT(m_trend.Growths(), IsEmpty());
    }

    QTemporaryDir m_folder;
    Dice m_dice{2024};
    UsageTrend m_trend;
};

TEST_F(OpeningsSoak, OpeningAndClosingTheLayerControlNeedsNoMoreAndMore)
{
    PluginHost host(m_folder.path(), m_dice);
    host.FillHistory();
    for (int opening = 1; opening <= SoakSize(); ++opening) {
        host.OpenEditAndClose();
        if (opening % 10 == 0)
            host.LoadPluginAgain();
        m_trend.Add(MeasureUsage());
    }
    ExpectFlat("Openings of the layer control");
}

TEST_F(OpeningsSoak, OpeningAndClosingTheMapNeedsNoMoreAndMore)
{
    for (int opening = 0; opening < SoakSize(); ++opening) {
        PluginHost(m_folder.path(), m_dice).OpenEditAndClose();
        m_trend.Add(MeasureUsage());
    }
    ExpectFlat("Openings of the map and the plug-in");
}

} // namespace

} // namespace Orvane::Testing
