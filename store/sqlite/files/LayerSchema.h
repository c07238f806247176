// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/LayerColumns.h>

#include <QtGlobal>

#include <algorithm>

namespace Orvane {

class SqliteConnection;

/// The tables of a layer database file, in every version that has been written.
namespace LayerSchema {

/// Marks a file as a layer database: "ORVN", in the header's application ID.
inline constexpr quint32 ApplicationID = 0x4F52564E;
/// Version 1 has the three tables and the two indexes used to look up rows; version 2 adds the indexes that
/// make lists and groups fast. The columns of layers and their versions are in LayerColumns.
inline constexpr qint32 CurrentVersion = std::max(2, NewestLayerColumn());

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
