// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>

struct sockaddr_un;

namespace Orvane::Testing {

/// Closes a file descriptor.
class Descriptor
{
public:
    explicit Descriptor(int number = -1) : m_number(number) { }
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) { }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }

    int Number() const { return m_number; }

private:
    int m_number;
};

/// The address of a socket in a folder; the test fails when the path is too long for one.
sockaddr_un AddressOf(const QString& path);

/// A connection to a socket in a folder. Calls wait at most ten seconds.
class UnixSocket
{
public:
    explicit UnixSocket(const QString& path);
    explicit UnixSocket(Descriptor descriptor);

    /// Sends all bytes, or as many as are taken before the other side ends the connection.
    void Send(const QByteArray& bytes);
    /// What is there, or comes next; empty at the end of the connection.
    QByteArray Read();
    /// That many bytes, fewer if the connection ends before.
    QByteArray Read(qsizetype count);
    QByteArray ReadToEnd();
    /// True when there is something to read at present.
    bool HasAnswer() const;

private:
    Descriptor m_descriptor;
};

/// A server's socket in a folder.
class UnixListener
{
public:
    explicit UnixListener(const QString& path);

    /// The next connection; nothing after Shut.
    std::optional<UnixSocket> Accept();
    /// Ends the waiting in Accept; from any thread.
    void Shut();

private:
    Descriptor m_descriptor;
};

} // namespace Orvane::Testing
