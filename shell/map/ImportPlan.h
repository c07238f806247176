// SPDX-License-Identifier: MIT
#pragma once

#include "shell/map/DataImport.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

class MapSession;

/// The map that data is to be added to, as far as finding the data's place needs it.
struct ImportTarget {
    QString system; ///< of the map; empty if the data decide it
    std::vector<LayerSource> sources; ///< of the map's layers that are to be read to know where they lie
    QString forUnnamed; ///< the system of all data that name none; empty to find it
    Box data = {}; ///< of the map's other layers, in its system
};

/// What is assumed about layers whose data name no coordinate system.
struct SystemNote {
    enum class Reason {
        Degrees, ///< the coordinates fit degrees
        Map, ///< they fit the map's system
        Chosen, ///< the user chose it
        Unknown, ///< nothing is assumed: the coordinates are taken as they are
        Unmeasured, ///< reading failed, so where the data lie is not known
    };

    Reason reason = Reason::Unknown;
    QString system; ///< empty for Unknown and Unmeasured
    QStringList names; ///< "roads.shp", or "town.gpkg (roads)" where a file has several layers
    QStringList paths; ///< of the files that are named, in that order
};

/// Data that were found, each with its place.
struct ImportPlan {
    FoundData data;
    std::vector<SystemNote> notes; ///< each system and reason once

    /// Whether it is known, or assumed, where all the data lie.
    bool IsPlaced() const;
    /// The layers of which nothing was found out, named as in SystemNote.
    QStringList Unknown() const;
    /// Gives these layers that system.
    void Choose(const QString& system);
    /// The notes as sentences for the user, with at most that many names in each; 0 for all.
    QStringList NoteTexts(int mostNames = 0) const;
};

/// Finds systems for the layers that name none, see GuessSystem. data: with its tables as layers. Extents
/// that a file does not tell are measured where they matter. For any thread. Raises Cancelled.
ImportPlan PlanImport(const FoundData& data, const ImportTarget& target, Progress& progress);

/// The target that a map is which was not read: its data are read where they matter.
ImportTarget TargetOf(const MapDocument& document);
/// The same for an open map, of which nothing is read again.
ImportTarget TargetOf(MapSession& session);

} // namespace Orvane
