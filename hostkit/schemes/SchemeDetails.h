// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/schemes/SchemeParts.h>

#include <QDateTime>
#include <QString>
#include <QtGlobal>

#include <optional>

namespace Orvane {

/// What a scheme is besides its values, inside a map or outside it.
struct SchemeHead {
    QString name; ///< without leading or trailing blanks, and not empty
    SchemeParts holds = WholeScheme; ///< the properties that it has values for
    QDateTime saved = {}; ///< when its values were taken from the layers; invalid if that is not known
};

/// The same of a scheme in a map, and what the map knows about it.
struct SchemeDetails : SchemeHead {
    qint32 id = 0; ///< in the tables
    std::optional<qint32> place = {}; ///< in the user's order, from 0; none for one that has no place in it
    bool isCurrent = false; ///< the current scheme
    bool isAtOpening = false; ///< loaded when the map is opened
};

/// The time as tables and texts keep it, such as "2026-05-01T12:30:00Z"; empty for an invalid one.
QString TextOfTime(const QDateTime& time);
/// The other way round; invalid for any other text.
QDateTime TimeOfText(const QString& text);

} // namespace Orvane
