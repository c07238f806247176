// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {
class ILayerStore;
}

namespace Orvane::HostTests {

struct HostContents;

/// Puts the rows into an empty layer store, in one transaction. For hosts that keep their layers in an
/// ILayerStore; raises the errors of the store.
void FillStore(ILayerStore& store, const HostContents& contents);

} // namespace Orvane::HostTests
