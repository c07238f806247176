// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleFilter.h>

namespace Orvane {

/// What Orvane's flat list shows: every layer but pseudo layers, which only named groups list.
class PseudoFilter final : public IStyleFilter
{
private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32, bool pseudo) const override { return !pseudo; }
};

} // namespace Orvane
