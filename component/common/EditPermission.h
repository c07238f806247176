// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/HostInterface.h"

#include <OrvaneShellLib/IEditPermission.h>

namespace Orvane {

/// Why the user may not change the map, in the words of the host; empty if all may be changed.
inline QString WhyNotEdited()
{
    const auto* permission = HostInterface<IEditPermission>();
    return permission ? permission->WhyNotEdited() : QString();
}

} // namespace Orvane
