// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QtGlobal>

namespace Orvane {

class ILayerDatabase;

/// The layers of one database that are also in another: the LayerID in the first, to that in the second. Two
/// layers are the same when they have the same code, 0 or more, that no other layer of either database has;
/// else when they have the same name, of which the lowest ID counts.
QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to);

} // namespace Orvane
