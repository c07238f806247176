// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Prepares GDAL, once per process, for files from unknown sources: drivers that connect to servers,
/// databases or other programs are removed, file systems on the network or on the terminal are disabled, and
/// code inside files is not run. So a file can refer to other ordinary files, but to nothing else; a
/// ReadingBound ends what takes too long. May be called on
/// any thread.
void PrepareGdal();

/// The reason why a name cannot be opened as data, as a sentence for the user: nothing of that name exists,
/// or it, a file in that folder or a file that accompanies it is neither a file nor a folder. Empty if
/// opening it can be tried.
QString WhyNotOpened(const QString& path);

} // namespace Orvane
