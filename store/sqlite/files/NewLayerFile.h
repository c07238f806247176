// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QString;

namespace Orvane {

/// Creates an empty file at that path and lets fill make a layer database of it. Raises DatabaseFailure if
/// the path exists or cannot be created, and what fill raises; no incomplete file remains then.
void MakeLayerFile(const QString& path, const std::function<void()>& fill);

} // namespace Orvane
