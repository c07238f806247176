// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>

namespace Orvane::Testing {

/// How often a soak test opens the layer control: the number in ORVANE_SOAK, else a sample of 25.
inline int SoakSize()
{
    const int size = qEnvironmentVariableIntValue("ORVANE_SOAK");
    return size > 0 ? std::max(size, 20) : 25;
}

/// The random events of a soak test, in all sessions together.
inline int SoakEvents()
{
    return SoakSize() * 100;
}

/// The rounds of work in Orvane's window: fewer, for each draws the whole map.
inline int SoakRounds()
{
    return std::max(25, SoakSize() / 4);
}

} // namespace Orvane::Testing
