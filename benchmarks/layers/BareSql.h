// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace Orvane::Benchmarks {

/// A connection with SQLite's C API alone, and statements that were prepared beforehand.
class BareSql
{
public:
    explicit BareSql(const QString& mapPath);

    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

    /// Raises std::runtime_error if it is no statement.
    Statement Prepared(const QByteArray& sql) const;
    /// Runs a statement without results.
    void Run(sqlite3_stmt* statement) const;
    /// Runs them as one transaction.
    void RunAll(const std::vector<Statement>& statements) const;
    /// Runs any text; for what is not measured, too.
    void Execute(const QByteArray& sql) const;

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    std::unique_ptr<sqlite3, Closer> m_handle;
};

} // namespace Orvane::Benchmarks
