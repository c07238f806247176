// SPDX-License-Identifier: MIT
#include "shell/help/GuideHistory.h"

namespace Orvane {

void GuideHistory::Visit(const QString& page, const QString& section)
{
    if (Has(0) && At(0).page == page && At(0).section == section)
        return;
    if (Has(1))
        m_places.erase(m_places.begin() + Index(1), m_places.end());
    m_places.push_back({page, section});
    m_present = m_places.size() - 1;
}

void GuideHistory::Leave(int top)
{
    if (Has(0))
        m_places[m_present].top = top;
}

} // namespace Orvane
