// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

namespace Orvane {

/// What is wrong with the IDs that a host gives.
namespace ListedIDs {

/// Raises HostError::ListInvalid if an ID is 0, which no layer and no group may have, or occurs twice.
void RequireOnceEach(const std::vector<qint32>& ids);

/// Raises HostError::UnknownLayer.
[[noreturn]] void RaiseUnknownLayer(qint32 layerID);
/// Raises HostError::UnknownGroup.
[[noreturn]] void RaiseUnknownGroup(qint32 groupID);

} // namespace ListedIDs

} // namespace Orvane
