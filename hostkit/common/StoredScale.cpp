// SPDX-License-Identifier: MIT
#include "hostkit/common/StoredScale.h"

#include "hostkit/common/ScaleTable.h"

#include <OrvaneShellLib/IShellServices.h>

namespace Orvane::StoredScale {

qint32 ToIndex(double stored, const IShellServices& services)
{
    if (!(stored > NoMinimum))
        return ScaleTable::FirstIndex - 1;
    if (stored >= NoMaximum)
        return ScaleTable::LastIndex + 1;
    return services.IndexFromScale(stored);
}

double FromIndex(qint32 index, const IShellServices& services)
{
    if (index < ScaleTable::FirstIndex)
        return NoMinimum;
    if (index > ScaleTable::LastIndex)
        return NoMaximum;
    return services.ScaleFromIndex(index);
}

} // namespace Orvane::StoredScale
