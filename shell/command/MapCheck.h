// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

/// One thing that is wrong with a map file.
struct MapProblem {
    enum class Kind {
        Damage, ///< the file is inconsistent
        BadValue, ///< a value is of the wrong kind or outside its range
        DanglingRows, ///< rows of a layer, group or scheme that no longer exists
        MissingData, ///< the data of a layer are not at their path
        UnreadableData, ///< the data exist, but cannot be read
    };
    Kind kind = Kind::Damage;
    QString text; ///< a sentence for a user, translated
    bool repairable = false; ///< RepairMap repairs it; of bad values at least one
};

/// The problems of the map file, worst first; empty if there are none. The file is not changed, and may be
/// open elsewhere. Raises what LayerStores::Open raises for a file that is missing, is not a map, or is too
/// damaged to be opened.
std::vector<MapProblem> CheckMap(const QString& path);

/// Repairs what can be repaired in one transaction, and returns the remaining problems. A map without such
/// problems is not written. Raises the errors of opening the file for writing, and of the database; the file
/// is then as before. replaced: gets a sentence for each value that was replaced; may be nullptr.
std::vector<MapProblem> RepairMap(const QString& path, QStringList* replaced = nullptr);

} // namespace Orvane
