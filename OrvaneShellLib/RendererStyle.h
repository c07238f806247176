// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane {

/// One way in which the host's renderer can draw a layer, beside "Standard", which has the number 0.
struct RendererStyle {
    qint32 number = 0; ///< stored in Layers.Style
    QString name; ///< shown to the person as it stands
};

} // namespace Orvane
