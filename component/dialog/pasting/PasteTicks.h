// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/pasting/Setting.h"

namespace Orvane {

/// Which settings the user wants to paste: kept while the process runs, for all editors. Nothing here raises.
namespace PasteTicks {

/// Those of these settings that have a tick. At first all but the quick mode, which is for now, and the
/// draw priority, which is a layer's own place among the others.
SettingSet TickedOf(const SettingSet& offered);

/// Keeps what the user has chosen; settings that were not offered stay as they were.
void Remember(const SettingSet& offered, const SettingSet& ticked);

} // namespace PasteTicks

} // namespace Orvane
