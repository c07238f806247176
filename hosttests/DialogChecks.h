// SPDX-License-Identifier: MIT
#pragma once

#include "hosttests/HostChecks.h"

#include <QString>

#include <vector>

namespace Orvane::HostTests {

/// The checks with the real dialog. component: as for StyleEditorPlugin; empty for its default name.
std::vector<HostCheck> DialogChecks(const QString& component);

} // namespace Orvane::HostTests
