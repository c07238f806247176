// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

/// One thing that is wrong with a map file.
struct MapProblem {
    enum class Kind {
        Damage, ///< the file contradicts itself
        DanglingRows, ///< rows that belong to a layer, group or scheme that is gone
        MissingData, ///< data that a layer shows are not where they should be
        UnreadableData, ///< data that are there, but cannot be read
    };
    Kind kind = Kind::Damage;
    QString text; ///< a sentence for a person, translated
    bool repairable = false; ///< RepairMap mends it
};

/// What is wrong with the map file, worst first; empty for a sound map. The file is not changed, and may be
/// open elsewhere. Raises what LayerStores::Open raises for a file that is missing, no map, or too
/// damaged to be opened.
std::vector<MapProblem> CheckMap(const QString& path);

/// Mends what can be mended, all in one transaction, and returns what is still wrong. A map without such
/// problems is not written. Raises what opening the file for writing raises, and what the database does; the
/// file is then as before.
std::vector<MapProblem> RepairMap(const QString& path);

} // namespace Orvane
