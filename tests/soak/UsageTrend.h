// SPDX-License-Identifier: MIT
#pragma once

#include "soak/Usage.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane::Testing {

/// Follows what a long session uses. Add measurements at equal distances, in comparable states; at least 20.
///
///     UsageTrend trend;
///     for (...) {
///         OpenAndClose();
///         trend.Add(MeasureUsage());
///     }
///     trend.Print("openings");
///     EXPECT_THAT(trend.Growths(), IsEmpty());
///
/// The first quarter is the warm-up and does not count: each kind of work is done once by then. Of the others
/// the least usage in the first tenth is compared with the least usage in the last tenth: what is used only
/// for a while is no growth.
class UsageTrend
{
public:
    UsageTrend();

    void Add(const Usage& usage) { m_usages.push_back(usage); }

    /// One line for each resource that grew by more than its rule allows; empty when everything is flat.
    QStringList Growths() const;
    /// Prints the first, the last and the difference of each resource.
    void Print(const char* title) const;

private:
    struct Ends {
        Usage first;
        Usage last;
    };

    Ends LeastAtTheEnds() const;

    std::vector<Usage> m_usages;
};

} // namespace Orvane::Testing
