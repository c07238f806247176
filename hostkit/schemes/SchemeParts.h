// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerColumns.h>

#include <QFlags>

#include <array>
#include <optional>

class QJsonValue;

namespace Orvane {

/// A class of the properties that schemes keep. The numbers are stored.
enum class SchemePart {
    Flags = 1, ///< visible, selectable, locked, hitable, snap required, enquirable
    Appearance = 2, ///< colours, styles, thickness, priority, quick mode
    Scales = 4, ///< the visible scale range
};

/// Several of these classes.
Q_DECLARE_FLAGS(SchemeParts, SchemePart)

/// All of them, in the order in which they are listed.
inline constexpr std::array AllSchemeParts{SchemePart::Flags, SchemePart::Appearance, SchemePart::Scales};

/// What a whole scheme holds.
inline constexpr SchemeParts WholeScheme{SchemePart::Flags, SchemePart::Appearance, SchemePart::Scales};

/// The class of a column that schemes keep.
constexpr SchemePart PartOf(const LayerColumn& column)
{
    if (column.kind == ColumnKind::Flag)
        return SchemePart::Flags;
    return column.kind == ColumnKind::Real ? SchemePart::Scales : SchemePart::Appearance;
}

/// The classes as the number that tables keep, such as 5 for flags and scales.
qint32 NumberOf(SchemeParts parts);
/// The other way round; a number that names none of them, as in a map of an earlier version, is a whole
/// scheme.
SchemeParts PartsOfNumber(qint32 number);

/// The classes as texts keep them: ["flags", "scales"].
QJsonValue JsonOf(SchemeParts parts);
/// The other way round; nothing for anything else, and for an empty list.
std::optional<SchemeParts> PartsOfJson(const QJsonValue& json);

} // namespace Orvane

Q_DECLARE_OPERATORS_FOR_FLAGS(Orvane::SchemeParts)
