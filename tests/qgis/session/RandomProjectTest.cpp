// SPDX-License-Identifier: MIT
#include "qgis/session/SessionWorld.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

constexpr int UsualSteps = 1000;

int StepsOfASession()
{
    const int asked = qEnvironmentVariableIntValue("ORVANE_SOAK");
    return asked > 0 ? asked : UsualSteps;
}

// ORVANE_SEED tries another session than the usual ones.
std::vector<unsigned> Seeds()
{
    const int asked = qEnvironmentVariableIntValue("ORVANE_SEED");
    return asked > 0 ? std::vector<unsigned>{unsigned(asked)} : std::vector<unsigned>{5, 13};
}

class RandomProject : public testing::TestWithParam<unsigned>
{
protected:
    RandomProject()
    {
        for (const auto& some : {DialogDeeds(), ShowingDeeds(), StyleDeeds(), ProjectDeeds()})
            m_deeds.insert(m_deeds.end(), some.begin(), some.end());
        for (const Deed& deed : m_deeds)
            m_weight += deed.weight;
    }

    const Deed& Next()
    {
        int left = world.dice.Below(m_weight);
        return *std::find_if(
            m_deeds.begin(), m_deeds.end(), [&](const Deed& deed) { return (left -= deed.weight) < 0; });
    }

    SessionWorld world{GetParam()};

private:
    std::vector<Deed> m_deeds;
    int m_weight = 0;
};

TEST_P(RandomProject, IsWhatTheUserMadeOfItOnBothSides)
{
    const int steps = StepsOfASession() / 2;
    for (int step = 0; step < steps && !HasFailure(); ++step) {
        const Deed& deed = Next();
        const testing::ScopedTrace trace(__FILE__, __LINE__, std::to_string(step) + ": " + deed.name);
        deed.act(world);
        SessionWorld::Settle();
        world.Check();
    }
    world.CheckSavedProject();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomProject, testing::ValuesIn(Seeds()));

} // namespace

} // namespace Orvane::Testing
