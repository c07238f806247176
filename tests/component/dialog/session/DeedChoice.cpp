// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"

#include <algorithm>

namespace Orvane::Testing {

DeedChoice::DeedChoice()
{
    for (const auto& some :
         {EditingDeeds(), ListDeeds(), ShowingDeeds(), SchemeDeeds(), HostDeeds(), EndingDeeds(),
          StrangerDeeds()})
        m_deeds.insert(m_deeds.end(), some.begin(), some.end());
    for (const Deed& deed : m_deeds)
        m_weight += deed.weight;
}

const Deed& DeedChoice::Next(Dice& dice) const
{
    int left = dice.Below(m_weight);
    return *std::find_if(
        m_deeds.begin(), m_deeds.end(), [&](const Deed& deed) { return (left -= deed.weight) < 0; });
}

} // namespace Orvane::Testing
