// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"
#include "soak/SoakSize.h"
#include "soak/UsageTrend.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <deque>

namespace Orvane::Testing {

namespace {

using testing::IsEmpty;

constexpr std::array seeds{101u, 102u, 103u, 104u};
constexpr size_t DeedsToTell = 12; // with a failure
constexpr int MeasurementsOfASession = 100;
constexpr int FewestStepsBetween = 20; // opening the dialog again takes longer than that many steps

class RandomSessionSoak : public SessionFixture, public testing::WithParamInterface<unsigned>
{
protected:
    RandomSessionSoak() : SessionFixture(GetParam()) { }

    void ActAndCheck(int step)
    {
        const Deed& deed = m_deeds.Next(dice);
        m_latest.push_back(std::to_string(step) + ": " + deed.name);
        if (m_latest.size() > DeedsToTell)
            m_latest.pop_front();
        const testing::ScopedTrace trace(__FILE__, __LINE__, testing::PrintToString(m_latest));
        deed.act(*this);
        Check();
    }

    /// Without a dialog, so that the measurements can be compared.
    void Measure()
    {
        EditorForm().UnloadWithoutApply();
        m_trend.Add(MeasureUsage());
        OpenEditor();
    }

    UsageTrend m_trend;

private:
    DeedChoice m_deeds;
    std::deque<std::string> m_latest;
};

TEST_P(RandomSessionSoak, StaysAsThePaperSaysAndNeedsNoMoreAndMore)
{
    const int steps = SoakEvents() / int(seeds.size());
    const int stepsBetween = std::max(FewestStepsBetween, steps / MeasurementsOfASession);
    OpenEditor();
    for (int step = 1; step <= steps && !HasFailure(); ++step) {
        ActAndCheck(step);
        if (step % stepsBetween == 0)
            Measure();
    }
    EditorForm().UnloadWithoutApply();
    m_trend.Print(qPrintable(QStringLiteral("%1 random events, seed %2").arg(steps).arg(GetParam())));
    EXPECT_THAT(m_trend.Growths(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSessionSoak, testing::ValuesIn(seeds));

} // namespace

} // namespace Orvane::Testing
