// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <vector>

namespace Orvane {

/// One thing that is wrong with a map.
struct MapProblem {
    enum class Kind {
        Damage, ///< the file is inconsistent
        BadValue, ///< a value is of the wrong kind or outside its range
        DanglingRows, ///< rows of a layer, group or scheme that no longer exists
        MissingData, ///< the data of a layer are not at their path
        UnreadableData, ///< the data exist, but cannot be read
        Unfinished, ///< the check or the repair took too long
    };
    Kind kind = Kind::Damage;
    QString text; ///< a sentence for a user, translated
    bool repairable = false; ///< RepairMap repairs it; of bad values at least one
};

/// How long a check, or a repair, of the file itself may take; nothing for no limit. Reading the data has
/// limits of its own.
using CheckLimit = std::optional<std::chrono::milliseconds>;
inline constexpr std::chrono::minutes LongestMapCheck{10};

/// The problems of a map, worst first; empty if there are none. The map is not changed, and may be open
/// elsewhere. A map on a server is checked in a copy, and none of its problems is repairable. Raises what
/// LayerStores::Open raises for a map that is missing, is none, or is too damaged to be opened.
std::vector<MapProblem> CheckMap(const QString& map, CheckLimit limit = LongestMapCheck);

/// Repairs what can be repaired in one transaction, and returns the remaining problems. A map without such
/// problems is not written; neither is one whose repair takes longer than the limit. Raises the errors of
/// opening the file for writing, and of the database; the file is then as before. replaced: gets a sentence
/// for each value that was replaced; may be nullptr.
std::vector<MapProblem>
RepairMap(const QString& path, QStringList* replaced = nullptr, CheckLimit limit = LongestMapCheck);

} // namespace Orvane
