// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace Orvane {

/// What is removed together with a deleted layer.
struct LayerDeletion {
    QString layer; ///< its name
    QStringList groups; ///< the names of the groups it is in, in the order of the tree
    QStringList schemes; ///< the names of the schemes that have values for it, in the order of creation

    /// Asks the user, in a dialog in front of owner, whether to go on; the default is No. owner may be
    /// nullptr.
    bool Confirm(QWidget* owner) const;
};

} // namespace Orvane
