// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

class ILayerDatabase;

/// What identifies a layer in another map.
struct LayerIdentity {
    qint32 id = 0; ///< the LayerID, or any other number that is unique in its list
    std::optional<double> code; ///< 0 or more; none for a layer that is not matched by code
    QString name; ///< as in the column Name
};

/// All layers of a database, in the order of their IDs.
std::vector<LayerIdentity> IdentitiesOf(ILayerDatabase& database);

/// Maps the layers of one list that are also in another: from the ID in the first list to the ID in the
/// second. Two layers are the same if they have the same code and no other layer in either list has it;
/// otherwise, if they have the same name. If several layers have that name, the first one is used.
QHash<qint32, qint32>
MatchLayers(const std::vector<LayerIdentity>& from, const std::vector<LayerIdentity>& to);

/// As above, for the layers of two databases, by their LayerIDs.
QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to);

} // namespace Orvane
