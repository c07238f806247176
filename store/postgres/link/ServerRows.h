// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <memory>
#include <string_view>

struct pg_result;

namespace Orvane {

/// The rows that a server sent for one statement; a copy shares them.
class ServerRows
{
public:
    /// No rows.
    ServerRows() = default;
    /// Takes the result over.
    explicit ServerRows(pg_result* result);

    int Count() const;
    int ColumnCount() const;
    /// In lower case, unless the statement says otherwise.
    std::string_view ColumnName(int column) const;

    bool IsNull(int row, int column) const;
    /// The value in the text form of PostgreSQL, as long as a copy of these rows lives; empty for NULL.
    std::string_view Raw(int row, int column) const;
    /// As Raw.
    QString Text(int row, int column) const;
    /// As Raw, for a whole number; 0 for NULL and for anything else.
    qint64 Number(int row, int column) const;
    /// As Raw, for a boolean.
    bool Flag(int row, int column) const { return Raw(row, column) == "t"; }
    /// The value as a column of a cursor gives it. isColour: see IntegerValue.
    Value At(int row, int column, bool isColour = false) const;

    /// How many rows the statement inserted, updated or deleted.
    qint64 Changed() const;
    /// What the server says that it did, such as "COMMIT" or "UPDATE 3".
    std::string_view Done() const;

private:
    std::shared_ptr<pg_result> m_result;
};

} // namespace Orvane
