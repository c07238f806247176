// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace Orvane {

/// What goes with a layer that is deleted.
struct LayerDeletion {
    QString layer; ///< its name
    QStringList groups; ///< the names of the groups it is in, in the order of the tree
    QStringList schemes; ///< the names of the schemes that keep values of it, in the order of creation

    /// Asks the person in front of the owner whether to go on; No is the default. owner may be nullptr.
    bool Confirm(QWidget* owner) const;
};

} // namespace Orvane
