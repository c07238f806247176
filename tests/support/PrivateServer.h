// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

namespace Orvane::Testing {

/// A PostgreSQL server of this program's own, in a temporary folder. Only programs of the same user reach it,
/// through a socket in that folder; no other server of the machine is touched. It ends, and the folder
/// disappears, when this object is destroyed or the program ends in any way. The tests fail when it cannot be
/// started.
///
/// It needs the programs initdb and postgres: see IsInstalled.
class PrivateServer
{
public:
    /// Starts the server, which takes about a second. Removes the settings of libpq (PGHOST, PGUSER ...) from
    /// the environment of this program, so that they do not reach a test.
    PrivateServer();
    ~PrivateServer();
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;

    /// True when PostgreSQL's server was found as these tests were configured.
    static bool IsInstalled();
    /// True when a missing server is a fault: the variable ORVANE_REQUIRE_SERVER is set. Otherwise tests are
    /// skipped.
    static bool IsRequired();

    /// True when the server takes connections.
    bool IsRunning() const { return m_isRunning; }
    /// The folder with the server's socket.
    QString Folder() const { return m_folder; }
    /// The server's socket.
    QString Socket() const { return m_folder + QStringLiteral("/.s.PGSQL.5432"); }
    /// The server's process.
    pid_t Process() const;
    /// The process that ends the server and removes its folder.
    pid_t Keeper() const { return m_keeper; }

    /// For PQconnectdb: the database "postgres", which exists from the start, as that role. "orvane" may do
    /// everything.
    QByteArray Connection(const QByteArray& role = "orvane") const;
    /// The place of a map in the database "postgres", as a user writes it.
    QString Place(const QString& schema, const QString& role = QStringLiteral("orvane")) const;

    /// What the server has written about its work and its faults.
    QByteArray Log() const;
    /// The folder of the server's settings, such as pg_hba.conf.
    QString Settings() const { return m_folder + QStringLiteral("/data"); }

    /// Stops the server as an administrator does: open connections are ended with a message.
    void Stop() { Order("stop\n"); }
    /// Ends the server without a farewell.
    void Crash() { Order("crash\n"); }
    /// Starts the server after it was stopped.
    void Start() { Order("start\n"); }
    /// Stops and starts the server.
    void Restart();

private:
    void StartKeeper();
    void Order(const char* line);
    QByteArray NextLine() const;
    void TakeState();

    int m_orders = -1; // the keeper's standard input
    int m_answers = -1; // the keeper's standard output
    pid_t m_keeper = 0;
    QString m_folder;
    bool m_isRunning = false;
};

/// The server that all tests of a program share. It is started at the first call.
PrivateServer& SharedServer();

} // namespace Orvane::Testing
