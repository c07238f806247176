// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>

namespace Orvane {

class Changeset;

/// What changes to the rows of a layer database mean for a host.
struct LayerChanges {
    QSet<qint32> created;
    QSet<qint32> deleted;
    QSet<qint32> changed; ///< layers with changes in columns other than the name
    QSet<qint32> renamed;
    QSet<qint32> renamedGroups;
    bool groups = false; ///< groups or their layers have changed, apart from names and Expanded
    bool onlyCodes = true; ///< true when only the code of the changed layers has changed
    bool schemes = false; ///< the schemes, the current one, or saved values of layers that stay have changed
    bool schemeValues = false; ///< true unless schemes have changed only in name, order and opening

    static LayerChanges Of(const Changeset& changes);
};

} // namespace Orvane
