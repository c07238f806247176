// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane::Testing {

/// Makes one edit after the other in the map, and prints each number after its commit has returned. Ends only
/// when an edit fails, or when nobody reads the numbers; returns the exit code of the program.
int RunWriter(const QString& path, qint32 writer);

} // namespace Orvane::Testing
