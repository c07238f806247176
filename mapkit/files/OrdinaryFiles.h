// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// From now on GDAL and SQLite open only ordinary files and folders, whoever asks and however the name was
/// found: opening a pipe would wait for a writer, perhaps for ever. GDAL also opens nothing once a
/// ReadingBound of the thread is over. Once per process.
void OpenOnlyOrdinaryFiles();

} // namespace Orvane
