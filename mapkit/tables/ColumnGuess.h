// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/tables/CoordinateColumns.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Orvane {

/// The first rows of a table.
struct TableRows {
    QString layer; ///< the name in the source
    QStringList columns;
    std::vector<QStringList> rows; ///< one text for each column
};

/// A table of a file, and the columns chosen for it.
struct TableChoice {
    QString path; ///< absolute
    TableRows table;
    CoordinateColumns columns; ///< empty: the table is left out
};

/// A number as people and programs write it: with a decimal point or a decimal comma, with or without
/// thousands separators: points, commas, apostrophes or spaces. A single point or comma is a decimal one.
/// Nothing for other texts.
std::optional<double> NumberOf(const QString& text);

/// Guesses which columns hold the coordinates, from the usual names of several languages ("lon" and "lat",
/// "x" and "y", "Rechtswert" and "Hochwert", "start_lon" and "start_lat", "geom") and from the values, which
/// must suit. Empty if no columns suit.
CoordinateColumns GuessColumns(const TableRows& table);

/// Whether each of these rows has numbers in the columns for x and y.
bool HoldNumbers(const TableRows& table, const CoordinateColumns& columns);

} // namespace Orvane
