// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

/// True while a layer database is open anywhere, including in this program. If the file is not open anywhere,
/// its write-ahead log is written into it. A file that is missing or is not a layer database is not in use.
/// Raises nothing.
bool IsLayerFileInUse(const QString& path);

} // namespace Orvane
