// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

/// Copies a layer database, as it is at one moment, into a new file. It may be open elsewhere, and lie where
/// nothing can be written; it is never changed. Raises what SqliteLayerDatabase::Open raises for reading, and
/// DatabaseFailure when the copy cannot be written.
void CopyLayerFile(const QString& from, const QString& to);

} // namespace Orvane
