// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace Orvane::Testing {

/// The table that FolderState leaves out; it has one column, Number.
inline constexpr auto TableOfLaterEdits = "SweepEdits";

/// Everything in a folder, as sorted lines: for a map its tables, its rows and what SQLite finds wrong, for
/// another file its name and content. All files must be closed. What a failure left in a map's journals
/// counts with the map, as it does when the map is opened. A page with a date in it counts as whole or cut.
std::string FolderState(const QString& folder);

/// How many rows are in the table of later edits; -1 if it cannot be read.
int CountLaterEdits(const QString& map);

/// The lines that only one of two states has, some of them, for messages.
std::string StateDifferences(const std::string& expected, const std::string& found);

} // namespace Orvane::Testing
