// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>
#include <vector>

namespace Orvane {

/// A place in the guide that was visited.
struct GuidePlace {
    QString page; ///< the path of its file
    QString section; ///< see GuidePlaces.h; empty for the beginning
    int top = 0; ///< what was at the upper edge of the window, in pixels of the page
};

/// The places in the guide that were visited one after the other, for going back and forward.
class GuideHistory
{
public:
    /// A place that is visited now. Those to which one could go forward are forgotten. The present place
    /// again changes nothing.
    void Visit(const QString& page, const QString& section);
    /// Remembers what was at the upper edge before another place is shown.
    void Leave(int top);
    /// Goes that many steps, -1 for back; see Has.
    void Go(int steps) { m_present = size_t(Index(steps)); }

    /// The section of the present place; null before the first visit.
    QString Section() const { return m_places.empty() ? QString() : At(0).section; }
    /// Whether there is a place that many steps away.
    bool Has(int steps) const { return Index(steps) >= 0 && size_t(Index(steps)) < m_places.size(); }
    /// The place that many steps away, 0 for the present one; see Has.
    const GuidePlace& At(int steps) const { return m_places[size_t(Index(steps))]; }

private:
    std::ptrdiff_t Index(int steps) const { return std::ptrdiff_t(m_present) + steps; }

    std::vector<GuidePlace> m_places;
    size_t m_present = 0;
};

} // namespace Orvane
