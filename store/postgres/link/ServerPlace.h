// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

namespace Orvane {

/// Where a map on a PostgreSQL server is, or where the server is.
///
///     postgresql:///?service=team&schema=Town
///     postgresql://anna@maps.example.org/maps?schema=Town
///
/// It is a connection URI of libpq with the map's schema. It never holds a password: libpq finds that in its
/// own files, or the user is asked.
struct ServerPlace {
    /// A keyword of libpq and its value, both in UTF-8.
    using Option = std::pair<QByteArray, QByteArray>;

    QString schema; ///< the map; empty for the server itself
    std::vector<Option> options; ///< how to connect, in the order of their keywords

    /// True when the text begins like one.
    static bool IsOne(const QString& place);
    /// Reads a place. Raises DatabaseFailure if it is not one, or holds a password or a setting that only the
    /// user's own files may hold, or a name that is too long for a map. No error repeats a password.
    static ServerPlace FromText(const QString& place);
    /// The same for the place of a map; raises DatabaseFailure also if it names none.
    static ServerPlace OfMap(const QString& place);
    /// The place as text; equal places have equal texts.
    QString ToText() const;

    /// How the user reads it: the map's name, and the service or the server.
    QString Name() const;
    /// How the user reads the server alone.
    QString ServerName() const;
    /// The value of a keyword, empty if it is not given.
    QByteArray Find(const QByteArray& keyword) const;
};

} // namespace Orvane
