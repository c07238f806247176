// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Orvane {

class StoreErrors;

/// A statement of a store's caller, as PostgreSQL reads it.
struct StatementText {
    QByteArray text; ///< in UTF-8, with $1 in place of ?1; everything else as it was given
    int parameters = 0; ///< how many values it takes: the highest number of a parameter
    bool reads = false; ///< it is a query, and changes nothing by itself
    bool changesTables = false; ///< it makes, changes or removes tables or the like

    /// Reads a text. Raises DatabaseFailure if it is not one statement, or one that begins or ends a
    /// transaction or exchanges data outside of parameters and rows.
    static StatementText Of(const QString& sql, const StoreErrors& errors);
};

} // namespace Orvane
