// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class ILayerStore;

/// The tables that a map has besides those of layers and groups. In a file each is made when it is first
/// needed. On a server only the owner of a map may make tables, so that a map there has all of them from the
/// beginning.
namespace MapTables {

/// Makes all that are missing: sources, renderings, settings, themes, schemes, notes and their versions.
/// Raises errors of the store.
void PrepareAll(ILayerStore& store);

} // namespace MapTables

} // namespace Orvane
