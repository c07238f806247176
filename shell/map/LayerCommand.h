// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>
#include <vector>

namespace Orvane {

/// A command for one or several layers, in the menu of the layer control's lists and in that of the map.
struct LayerCommand {
    QString id; ///< tells the commands apart; never shown
    QString text; ///< in the user's language
    /// Returns why it is not possible for these layers, in the user's language; empty if it is. At least one
    /// layer is given.
    std::function<QString(const std::vector<qint32>& layerIDs)> whyNot;
    /// Runs it; may raise, which is shown to the user.
    std::function<void(const std::vector<qint32>& layerIDs)> run;
};

} // namespace Orvane
