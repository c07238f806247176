// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/server/ServerMap.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QtGlobal>

#include <memory>

struct pg_conn;
struct pg_result;

namespace Orvane::Benchmarks {

/// The cost of the jobs with libpq alone, with the fewest statements that do them: they are prepared
/// beforehand, values are looked at and dropped. One object is one connection.
class BareLink
{
public:
    explicit BareLink(const ServerMap& map);

    /// All columns of all layers, by name.
    void ReadFlatList();
    /// All properties of the layers of the group, in one transaction.
    void ReadMembers();
    /// Reads them, and stores seventeen columns of each, in one transaction.
    void WriteMembers(bool visible);

    /// The sum of all that was read, so that the compiler cannot remove a read.
    qint64 Checksum() const { return m_checksum; }

private:
    struct Closer {
        void operator()(pg_conn* connection) const;
    };
    struct Clearer {
        void operator()(pg_result* result) const;
    };
    using Result = std::unique_ptr<pg_result, Clearer>;

    void Prepare(const char* name, const QByteArray& sql);
    Result Run(const char* name, const QByteArrayList& values = {});
    QByteArrayList Members();
    void Read(const Result& result);
    static Result Checked(pg_result* result);

    std::unique_ptr<pg_conn, Closer> m_connection;
    qint64 m_checksum = 0;
};

} // namespace Orvane::Benchmarks
