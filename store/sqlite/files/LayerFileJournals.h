// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Orvane {

// SQLite keeps a write-ahead log with its index, or a rollback journal, beside a database file.

/// True when a log or a journal with content is beside the file: the file alone is not the whole database.
/// Raises nothing.
bool HasJournal(const QString& path);

/// Brings what a crash has left in a log or a journal into the file, and removes these files; without any,
/// the file is not touched. The file must not be open anywhere. What is beside a file that is missing,
/// damaged or no database is removed. Raises the error of the database if it cannot be written; the log stays
/// then.
void SettleJournals(const QString& path);

/// Removes a database file that is not open, with the files beside it; does nothing if it is missing. Raises
/// nothing.
void RemoveLayerFile(const QString& path);

} // namespace Orvane
