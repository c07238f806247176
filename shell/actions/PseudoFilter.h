// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleFilter.h>

namespace Orvane {

/// What Orvane's flat list shows: every layer except pseudo layers, which are listed in named groups only.
class PseudoFilter final : public IStyleFilter
{
private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32, bool pseudo) const override { return !pseudo; }
};

} // namespace Orvane
