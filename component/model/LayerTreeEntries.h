// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/LayerValues.h>

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

/// A layer and its quick mode: 1, 2 or 4.
struct LayerMode {
    qint32 layerID = 0;
    qint16 quickMode = QuickMode::Normal;
};

/// A layer as a tree lists it.
struct LayerEntry {
    qint32 layerID = 0;
    qint16 quickMode = QuickMode::Normal;
    QString text; ///< decorated display name
    bool faulty = false; ///< a value of its row could not be read
    double code = 0; ///< NaN if it could not be read

    bool operator==(const LayerEntry&) const = default;
};

/// A group as the groups tree lists it, with its layers in their order.
struct GroupEntry {
    qint32 groupID = 0;
    QString text;
    bool expanded = false;
    std::vector<LayerEntry> layers;
    bool faulty = false; ///< a value of its row could not be read
};

} // namespace Orvane
