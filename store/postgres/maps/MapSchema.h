// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/LayerVersions.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QtGlobal>

namespace Orvane {

/// The schema in which a PostgreSQL server keeps a map: statements that make it, in every version that has
/// been written. Besides the three tables of layers and groups, and those of hosts, it has
///
/// - orvane_map: one row with the version, the title, and who made the map when. It marks a schema as a map.
/// - orvane_names: how the names of tables and columns are spelled.
/// - orvane_news: which rows were changed by whom, see NoteFunction.
namespace MapSchema {

/// The version of new maps.
inline constexpr qint32 CurrentVersion = NewestLayerVersion;

/// What a session of a map, or a transaction that makes or migrates one, sets search_path to. The server's
/// own names come first in it, without being named.
QByteArray SearchPath(const QString& schema);

/// Creates a schema with an empty map. Run in one transaction; the search path is set for its rest.
QByteArrayList Creation(const QString& schema, const QString& title);

/// Brings a map from that version to the current one. Run in one transaction, with the search path set.
QByteArrayList Migration(qint32 version);

} // namespace MapSchema

} // namespace Orvane
