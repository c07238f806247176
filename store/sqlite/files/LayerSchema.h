// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/LayerVersions.h"

#include <QtGlobal>

namespace Orvane {

class SqliteConnection;

/// The tables of a layer database file, in every version that has been written.
namespace LayerSchema {

/// Marks a file as a layer database: "ORVN", in the header's application ID.
inline constexpr quint32 ApplicationID = 0x4F52564E;
/// The version of new files. Version 1 has besides the tables the two indexes used to look up rows.
inline constexpr qint32 CurrentVersion = NewestLayerVersion;

/// Marks an empty database as a layer database and creates its tables.
void Create(SqliteConnection& connection);

/// Raises DatabaseTooNew for a database of a newer version.
void CheckVersion(SqliteConnection& connection);

/// Upgrades a database of an older version to the current one, all or nothing.
void Migrate(SqliteConnection& connection);

/// Raises NotALayerDatabase if a table or column that the database's version has is missing.
void Check(SqliteConnection& connection);

} // namespace LayerSchema

} // namespace Orvane
