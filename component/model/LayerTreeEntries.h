// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

/// A layer as a tree lists it.
struct LayerEntry {
    qint32 layerID = 0;
    qint16 quickMode = 1; ///< 1 normal, 2 backdrop, 4 hidden
    QString text; ///< decorated display name
};

/// A group as the groups tree lists it, with its layers in their order.
struct GroupEntry {
    qint32 groupID = 0;
    QString text;
    bool expanded = false;
    std::vector<LayerEntry> layers;
    qint16 quickMode = 0; ///< what the listed layers have in common: 1, 2 or 4; 0 where they differ
};

} // namespace Orvane
