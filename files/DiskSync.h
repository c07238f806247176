// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <system_error>

namespace Orvane {

/// Waits until what was written through that open file is on the disk. handle: as QFileDevice::handle returns
/// it; with -1 nothing is done. Returns why it failed; raises nothing.
std::error_code SyncHandle(int handle);

/// As SyncHandle, for a file that is closed. It must not be open as a database in this program: the locks of
/// that database would end.
std::error_code SyncFile(const QString& path);

/// Does what the system can so that a file that was renamed in that folder has its new name after a power
/// failure too. Raises nothing.
void SyncFolder(const QString& path);

} // namespace Orvane
