// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

#include <vector>

namespace Orvane {

/// What the values of a column are.
enum class CellKind {
    Text, ///< QString; also lists and everything else that is written as text
    Whole, ///< qlonglong
    Real, ///< double
    Flag, ///< bool
    Date, ///< QDate
    Time, ///< QTime
    DateTime, ///< QDateTime; its clock is that of the source
};

/// One attribute of a layer, as a column of a table.
struct TableColumn {
    QString name;
    CellKind kind = CellKind::Text;

    bool IsNumber() const { return kind == CellKind::Whole || kind == CellKind::Real; }
    bool operator==(const TableColumn&) const = default;
};

/// The attributes of one feature, one for each column: of the type of the column's kind, a QString where the
/// source has a value that this type cannot hold, invalid for null.
using TableRow = std::vector<QVariant>;

/// The value as the user reads it: numbers with the locale's decimal sign and without signs between
/// thousands, because many are codes or years; dates with all digits of the year. Empty for null.
QString CellText(const QVariant& value, const QLocale& locale);

} // namespace Orvane
