// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

class ILayerDatabase;

/// What a layer is known by in another map.
struct LayerIdentity {
    qint32 id = 0; ///< the LayerID, or any other number that its list holds once
    std::optional<double> code; ///< 0 or more; none for a layer that shares no code
    QString name;
};

/// All layers of a database, in the order of their IDs.
std::vector<LayerIdentity> IdentitiesOf(ILayerDatabase& database);

/// The layers of one list that are also in another: the ID in the first, to that in the second. Two layers
/// are the same when they have the same code, that no other layer of either list has; else when they have the
/// same name, of which the first counts.
QHash<qint32, qint32>
MatchLayers(const std::vector<LayerIdentity>& from, const std::vector<LayerIdentity>& to);

/// The same for the layers of two databases, by their LayerIDs.
QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to);

} // namespace Orvane
