// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <string>
#include <vector>

struct pg_conn;

namespace Orvane::Testing {

/// A connection to a server, made with libpq alone: it counts as another program.
class RawLink
{
public:
    /// connection: as PQconnectdb takes it.
    explicit RawLink(const QByteArray& connection);
    ~RawLink();
    RawLink(const RawLink&) = delete;
    RawLink& operator=(const RawLink&) = delete;

    /// Runs statements; the test fails when they fail.
    void Run(const char* sql) { Run(QByteArray(sql)); }
    void Run(const QByteArray& sql);
    /// Runs statements one after another, in one transaction.
    void RunTogether(const QByteArrayList& statements);
    /// The SQLSTATE with which a statement fails; empty if it does not.
    std::string Failure(const QByteArray& sql);

    /// The first column of the first row; empty if there is none.
    std::string Text(const char* sql) { return Text(QByteArray(sql)); }
    std::string Text(const QByteArray& sql);
    /// The columns of each row, with bars between them.
    std::vector<std::string> Rows(const QByteArray& sql);
    /// What was notified since the last call, as far as it has come.
    std::vector<std::string> Notices();

private:
    pg_conn* m_link = nullptr;
};

} // namespace Orvane::Testing
