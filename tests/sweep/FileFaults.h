// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/IFault.h"

#include <memory>
#include <vector>

namespace Orvane::Testing {

class FailingFiles;

/// The ways in which the files below SQLite fail. files: not owned; outlives the faults.
std::vector<std::unique_ptr<IFault>> MakeFileFaults(FailingFiles& files);

} // namespace Orvane::Testing
