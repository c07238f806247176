// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/shared/StoreErrors.h"
#include "store/sqlite/files/LayerFileJournals.h"

#include <QString>

namespace Orvane {

class SqliteConnection;

/// A layer database file that is made beside its place, under another name, and is moved there when all of it
/// is on the disk and has been checked. Until then nothing at that place changes: neither the file that is to
/// be replaced nor its log. Without PutInPlace, or if that fails, no part of the new file is left.
///
///     NewLayerFile file(place, IfExists::Replace, {});
///     FillAndClose(file.Path(), file.Options());
///     file.PutInPlace();
class NewLayerFile
{
public:
    /// Creates an empty file to be filled; what an earlier crash has left of one is removed. Raises
    /// DatabaseFailure if there is a file to be kept or none can be created, DatabaseLocked if the file to be
    /// replaced is open anywhere or another program is making one for the same place.
    NewLayerFile(const QString& place, IfExists ifExists, const StoreOptions& options);
    NewLayerFile(const NewLayerFile&) = delete;
    NewLayerFile& operator=(const NewLayerFile&) = delete;

    /// Where the file is made, absolute.
    const QString& Path() const { return m_path; }
    /// How to open it, so that errors name its place.
    const StoreOptions& Options() const { return m_options; }

    /// Copies that database into the empty file. Raises errors that name the database that caused them.
    void CopyFrom(SqliteConnection& original) const;

    /// Finishes the file and moves it to its place. It must not be open any more. Raises DatabaseFailure if
    /// it cannot be written completely, NotALayerDatabase if it is not sound, and the errors of the
    /// constructor.
    void PutInPlace();

private:
    void CheckPlace() const;
    void Move() const;

    IfExists m_ifExists;
    StoreOptions m_options;
    StoreErrors m_errors;
    QString m_place; // absolute
    QString m_path;
    LayerFileRemoval m_removal;
};

} // namespace Orvane
