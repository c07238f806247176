// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeCoding.h"
#include "store/shared/ColumnMap.h"

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <memory>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace Orvane {

class SqliteConnection;

/// One prepared statement; the connection must outlive it.
///
///     SqliteStatement statement(connection, QStringLiteral("SELECT Name FROM Layers WHERE LayerID = ?1"));
///     statement.Bind(1, 17);
///     while (statement.Step())
///         names << statement.Column(0);
class SqliteStatement
{
public:
    /// Raises if the text is not exactly one statement.
    SqliteStatement(SqliteConnection& connection, const QString& sql);

    /// True when the statement only reads.
    bool IsReadOnly() const;
    /// Binds a value to a parameter, numbered from 1; booleans as 0 and 1. An Empty value raises.
    void Bind(int number, const Value& value);
    void Bind(int number, qint32 value);
    /// Binds a value exactly as a database stores it.
    void Bind(int number, const StoredValue& value);
    /// Binds all parameters; raises if the number of values differs from the number of parameters.
    void BindAll(const std::vector<Value>& values);

    /// Goes to the next row; false past the last one.
    bool Step();
    /// As Step, but returns SQLite's result code instead of raising.
    int TryStep();
    /// Ends the run, so that it holds no lock; bound values stay.
    void Reset() noexcept;
    /// Ends the run and forgets the bound values.
    void ResetAndUnbind() noexcept;

    /// The position of the column, from 0; -1 when there is none.
    int FindColumn(std::string_view name);
    const std::string& ColumnName(int position) const { return m_columns.Name(position); }
    int ColumnCount() const;
    /// The value in the current row: 32-bit integers as integers, larger ones as double, an unsigned 32-bit
    /// colour as the signed integer with the same bits, blobs as text.
    Value Column(int position) const;
    /// As Column, but Empty for what no value can hold as it is stored: a blob, or a text that is not UTF-8.
    Value ExactColumn(int position) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    void ReadColumns();

    SqliteConnection& m_connection;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    ColumnMap m_columns;
};

} // namespace Orvane
