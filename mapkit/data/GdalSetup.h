// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Makes GDAL ready, once a process, for files from anywhere: drivers that talk to servers, databases or
/// other programs are taken out, file systems on the network or on the terminal are closed, and code inside
/// files is not run. So a file can refer to other files, and to nothing else. For any thread.
void PrepareGdal();

/// Why a name cannot be opened as data, as a sentence for a person: nothing is there, or it is neither a file
/// nor a folder. Empty when it can be tried.
QString WhyNotOpened(const QString& path);

} // namespace Orvane
