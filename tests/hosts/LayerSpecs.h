// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane::Testing {

/// A row of Layers; members that are not set have ordinary values.
///
///     host.AddLayer({.id = 17, .name = "Roads", .color = 0x0000FF});
struct LayerSpec {
    qint32 id = 0;
    QString name = QStringLiteral("Layer");
    Value code = qint32(0);
    bool visible = true;
    bool selectable = true;
    bool locked = false;
    bool hitable = true;
    bool snapRequired = false;
    bool enquirable = true;
    Value color = qint32(0); ///< BGR, top byte 0 or 0xFF
    Value fillForeColor = qint32(0xFFFFFF);
    Value fillBackColor = qint32(0xC0C0C0);
    Value outlineStyle = qint32(0);
    Value fillStyle = qint32(0);
    Value lineThickness = qint32(-1);
    Value minVisScale = 0.0; ///< stored scale: 1000 times the index
    Value maxVisScale = 256000.0;
    Value priority = qint32(100);
    Value style = qint32(0);
    Value overrideMode = qint32(0);
    bool systemLayer = false;
    bool pseudo = false;
};

/// A row of LayerGroups with its rows of LayerGroupMembers, the members in their order.
struct GroupSpec {
    qint32 id = 0;
    QString name = QStringLiteral("Group");
    qint32 ordering = 0;
    bool pseudo = false;
    bool expanded = false;
    std::vector<qint32> members{};
};

} // namespace Orvane::Testing
