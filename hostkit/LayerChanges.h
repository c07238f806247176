// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>

namespace Orvane {

class Changeset;
class SqliteLayerDatabase;

/// What changed rows of a layer database mean to a host.
struct LayerChanges {
    QSet<qint32> created;
    QSet<qint32> deleted;
    QSet<qint32> changed; ///< other columns than the name
    QSet<qint32> renamed;
    QSet<qint32> renamedGroups;
    bool onlyCodes = true; ///< of the changed layers nothing but the code
    bool schemes = false; ///< the set of schemes, the current one, or values that stay in them

    /// database: to which the changes were made.
    static LayerChanges Of(const Changeset& changes, SqliteLayerDatabase& database);
};

} // namespace Orvane
