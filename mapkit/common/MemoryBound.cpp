// SPDX-License-Identifier: MIT
#include "mapkit/common/MemoryBound.h"

#include <cpl_conv.h>

namespace Orvane::MemoryBound {

double MostBytes()
{
    const auto all = double(CPLGetUsablePhysicalRAM());
    return all > 0 ? all / 4 : 4e9;
}

} // namespace Orvane::MemoryBound
