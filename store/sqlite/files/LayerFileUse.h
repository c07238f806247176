// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

/// True while a layer database is open for changes anywhere, including in this program. A file that is
/// missing or is not a database is not in use. Changes neither the file nor those beside it. Raises only for
/// lack of memory.
bool IsLayerFileInUse(const QString& path);

} // namespace Orvane
