// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace Orvane {
class ILayerStore;
}

namespace Orvane::Testing {

/// A new store with empty tables, whose rows may refer to rows that do not exist. Which kind of store it is,
/// is decided by the library that a test program links: test_hosts or test_server_hosts.
std::unique_ptr<ILayerStore> NewLooseStore();

} // namespace Orvane::Testing
