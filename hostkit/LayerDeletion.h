// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace Orvane {

/// What is removed together with a deleted layer, or with several that are deleted at once.
struct LayerDeletion {
    QString layer; ///< its name; of several, their number in words: "12 layers"
    QStringList groups; ///< the names of the groups they are in, in the order of the tree
    QStringList schemes; ///< the names of the schemes that have values for them, in the order of creation
    qsizetype layers = 1; ///< how many are deleted

    /// Asks the user, in a dialog in front of owner, whether to go on; the default is No. owner may be
    /// nullptr.
    bool Confirm(QWidget* owner) const;
};

} // namespace Orvane
