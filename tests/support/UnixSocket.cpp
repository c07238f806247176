// SPDX-License-Identifier: MIT
#include "support/UnixSocket.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace Orvane::Testing {

namespace {

Descriptor NewUnixSocket()
{
    return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

} // namespace

Descriptor::~Descriptor()
{
    if (m_number >= 0)
        close(m_number);
}

sockaddr_un AddressOf(const QString& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    EXPECT_LT(size_t(name.size()), sizeof address.sun_path) << name.constData();
    std::memcpy(
        address.sun_path, name.constData(), std::min(size_t(name.size()), sizeof address.sun_path - 1));
    return address;
}

UnixSocket::UnixSocket(const QString& path) : m_descriptor(NewUnixSocket())
{
    const sockaddr_un address = AddressOf(path);
    EXPECT_EQ(connect(m_descriptor.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
}

UnixSocket::UnixSocket(Descriptor descriptor) : m_descriptor(std::move(descriptor))
{
}

void UnixSocket::Send(const QByteArray& bytes)
{
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = send(
            m_descriptor.Number(), bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            return;
        sent += qsizetype(count);
    }
}

QByteArray UnixSocket::Read()
{
    return Read(1);
}

QByteArray UnixSocket::Read(qsizetype count)
{
    QByteArray all;
    while (all.size() < count) {
        pollfd waits{m_descriptor.Number(), POLLIN, 0};
        if (poll(&waits, 1, 10'000) != 1) {
            ADD_FAILURE() << "nothing came within ten seconds";
            break;
        }
        std::array<char, 8192> buffer{};
        const ssize_t got = recv(m_descriptor.Number(), buffer.data(), buffer.size(), 0);
        if (got <= 0)
            break;
        all += QByteArray(buffer.data(), qsizetype(got));
    }
    return all;
}

QByteArray UnixSocket::ReadToEnd()
{
    return Read(std::numeric_limits<qsizetype>::max());
}

bool UnixSocket::HasAnswer() const
{
    pollfd waits{m_descriptor.Number(), POLLIN, 0};
    return poll(&waits, 1, 0) == 1;
}

UnixListener::UnixListener(const QString& path) : m_descriptor(NewUnixSocket())
{
    const sockaddr_un address = AddressOf(path);
    EXPECT_EQ(bind(m_descriptor.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(listen(m_descriptor.Number(), 16), 0);
}

std::optional<UnixSocket> UnixListener::Accept()
{
    Descriptor connection(accept4(m_descriptor.Number(), nullptr, nullptr, SOCK_CLOEXEC));
    if (connection.Number() < 0)
        return std::nullopt;
    return UnixSocket(std::move(connection));
}

void UnixListener::Shut()
{
    shutdown(m_descriptor.Number(), SHUT_RDWR);
}

} // namespace Orvane::Testing
