// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeSelection.h"

#include <QString>

#include <vector>

namespace Orvane {

class IStyleEditorClient;

/// The IDs of the layers that these nodes stand for, each once: the layers themselves, then the stored
/// members of the groups. Raises what the host and its database raise.
std::vector<qint32> ReadLayerIDs(IStyleEditorClient& client, const NodeSelection& nodes);

/// How several chosen nodes are named where one would be named: "12 layers".
QString NameOfLayers(qsizetype layers);

} // namespace Orvane
