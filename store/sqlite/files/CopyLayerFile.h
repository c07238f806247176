// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

/// Makes a consistent copy of a layer database in a new file. The original may be open elsewhere or be in a
/// read-only folder; it is never changed. Raises what LayerStores::Open raises for reading, and
/// DatabaseFailure when there is a file already or the copy cannot be written; no part of it remains then.
void CopyLayerFile(const QString& from, const QString& to);

} // namespace Orvane
