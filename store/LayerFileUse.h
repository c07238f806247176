// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

/// True while a layer database is open somewhere, in this program too. A file that nobody has open gets its
/// write-ahead log written into it; one that is missing or no layer database is not in use. Raises nothing.
bool IsLayerFileInUse(const QString& path);

} // namespace Orvane
