// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane {

/// One way in which the host's renderer can draw a layer, besides "Standard", which has the number 0.
struct RendererStyle {
    qint32 number = 0; ///< stored in Layers.Style
    QString name; ///< shown to the user as it is
};

} // namespace Orvane
