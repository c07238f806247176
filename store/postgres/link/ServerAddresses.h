// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerPlace.h"

#include <vector>

namespace Orvane {

/// The settings for each address at which a server may be reached, in the order in which they are to be
/// tried: a place may name several hosts, and a host may have several addresses, of which some are dead.
/// Looking up names may block. Settings in which libpq finds the hosts itself stay one.
std::vector<std::vector<ServerPlace::Option>> AddressesOf(const std::vector<ServerPlace::Option>& settings);

} // namespace Orvane
