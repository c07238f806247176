// SPDX-License-Identifier: MIT
#include "hostkit/common/StoredScale.h"

#include "hostkit/common/ScaleTable.h"

#include <OrvaneShellLib/IShellServices.h>

namespace Orvane::StoredScale {

qint32 ToIndex(double stored, const IShellServices& services)
{
    const bool isLimit = stored > NoLimit && stored < BeyondAllScales; // false for NaN
    return isLimit ? services.IndexFromScale(stored) : ScaleTable::FirstIndex - 1;
}

double FromIndex(qint32 index, const IShellServices& services)
{
    const bool isLimit = index >= ScaleTable::FirstIndex && index <= ScaleTable::LastIndex;
    return isLimit ? services.ScaleFromIndex(index) : NoLimit;
}

} // namespace Orvane::StoredScale
