// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <filesystem>

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

/// Removes a database file that is not open, with the files beside it, when this object is destroyed. Needs
/// no memory for that: it often happens because there is none.
class LayerFileRemoval
{
public:
    /// Removes nothing until it is armed.
    explicit LayerFileRemoval(const QString& path);
    ~LayerFileRemoval();
    LayerFileRemoval(const LayerFileRemoval&) = delete;
    LayerFileRemoval& operator=(const LayerFileRemoval&) = delete;

    void Arm() { m_isArmed = true; }
    void Disarm() { m_isArmed = false; }

private:
    std::array<std::filesystem::path, 4> m_files;
    bool m_isArmed = false;
};

} // namespace Orvane
