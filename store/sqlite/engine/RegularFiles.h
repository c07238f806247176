// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

class StoreErrors;

/// Raises DatabaseFailure if the database file, or a file that SQLite would use next to it (-journal, -wal,
/// -shm), exists and is not a regular file: opening a pipe waits for a writer, perhaps for ever. Links are
/// followed.
void RequireRegularFiles(const QString& path, const StoreErrors& errors);

} // namespace Orvane
