// SPDX-License-Identifier: MIT
#pragma once

#include "shell/map/DataImport.h"

#include <QString>

namespace Orvane::Testing {

class SweepFolder;

/// Writes a data file with one line beside the folder, and returns its path.
QString WriteSweepData(const SweepFolder& folder);

/// What is in that file.
FoundData FindSweepData(const SweepFolder& folder);

} // namespace Orvane::Testing
