// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace Orvane {

class SqliteConnection;

/// The names of the tables that this system keeps in a map, by the store and by its hosts.
inline constexpr std::array PlainTableNames{
    "Layers",         "LayerGroups",  "LayerGroupMembers", "LayerSources",
    "LayerRendering", "LayerSchemes", "LayerSchemeValues", "MapSettings",
    "HostTables",     "Themes",       "ThemeLayers",       "MapNotes"};

/// Raises NotALayerDatabase, and says what was found, if one of these names is a view or a virtual table, or
/// if one of the tables has a trigger, a computed column or another expression. Such a file could make every
/// query run for ever. A missing table is no fault here. Only the schema is read.
void RequirePlainTables(SqliteConnection& connection);

} // namespace Orvane
