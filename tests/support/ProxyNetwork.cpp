// SPDX-License-Identifier: MIT
#include "support/ProxyNetwork.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace Orvane::Testing {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr qsizetype MostHeld = 1 << 20; // bytes of one direction; more is left in the sender's socket

Descriptor NewSocket()
{
    return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

// The name of a socket may have 107 bytes.
QString FolderTemplate()
{
    const QString usual = QDir::tempPath();
    return (usual.size() <= 60 ? usual : QStringLiteral("/tmp")) + QStringLiteral("/proxy-XXXXXX");
}

} // namespace

CuttingProxy::Network::Network(const QString& serverSocket)
    : m_serverSocket(serverSocket), m_folder(FolderTemplate())
{
    std::array<int, 2> ends{-1, -1};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
    m_wakened = Descriptor(ends[0]);
    m_wakeEnd = Descriptor(ends[1]);
    m_listener = NewSocket();
    const sockaddr_un address = AddressOf(Socket());
    EXPECT_EQ(bind(m_listener.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(listen(m_listener.Number(), 64), 0);
    m_thread = std::thread([this] { Run(); });
}

CuttingProxy::Network::~Network()
{
    Do([this] { m_isOver = true; });
    m_thread.join();
}

QString CuttingProxy::Network::Socket() const
{
    return m_folder.filePath(QFileInfo(m_serverSocket).fileName());
}

void CuttingProxy::Network::Run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isOver) {
        std::vector<pollfd> watched = Watched();
        const int pause = Pause();
        lock.unlock();
        poll(watched.data(), watched.size(), pause);
        lock.lock();
        std::array<char, 64> wakes{};
        (void)!read(m_wakened.Number(), wakes.data(), wakes.size());
        Work();
    }
}

// A socket that is not to be read is left out: its end would be reported again and again.
std::vector<pollfd> CuttingProxy::Network::Watched()
{
    std::vector<pollfd> watched{{m_wakened.Number(), POLLIN, 0}, {m_listener.Number(), POLLIN, 0}};
    if (m_mood == Mood::Silent)
        return watched;
    for (const Connection& connection : m_connections) {
        const auto watch = [&](int socket, const Lane& from, const Lane& to) {
            const int reads = !connection.isEnding && from.held < MostHeld ? POLLIN : 0;
            const int writes = to.isFull ? POLLOUT : 0;
            if (reads || writes)
                watched.push_back({socket, short(reads | writes), 0});
        };
        watch(connection.client.Number(), connection.toServer, connection.toClient);
        watch(connection.server.Number(), connection.toClient, connection.toServer);
    }
    return watched;
}

// Milliseconds until a piece arrives, -1 if there is none.
int CuttingProxy::Network::Pause() const
{
    std::optional<Clock::time_point> next;
    for (const Connection& connection : m_connections) {
        for (const Lane* lane : {&connection.toServer, &connection.toClient}) {
            if (!lane->pieces.empty() && !lane->isFull)
                next = std::min(next.value_or(lane->pieces.front().due), lane->pieces.front().due);
        }
    }
    if (!next || m_mood == Mood::Silent)
        return -1;
    return int(std::max<qint64>(0, std::chrono::ceil<milliseconds>(*next - Clock::now()).count()));
}

void CuttingProxy::Network::Work()
{
    Accept();
    if (m_mood == Mood::Silent)
        return;
    for (Connection& connection : m_connections) {
        Take(connection, connection.client.Number(), connection.toServer);
        Take(connection, connection.server.Number(), connection.toClient);
        Deliver(connection, connection.server.Number(), connection.toServer);
        Deliver(connection, connection.client.Number(), connection.toClient);
    }
    m_connections.remove_if([](const Connection& connection) { return connection.isOver; });
}

void CuttingProxy::Network::Accept()
{
    Descriptor client(accept4(m_listener.Number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (client.Number() < 0)
        return;
    Descriptor server = NewSocket();
    const sockaddr_un address = AddressOf(m_serverSocket);
    if (m_mood == Mood::Refusing)
        ++m_cuts;
    else if (connect(server.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        m_connections.push_back({std::move(client), std::move(server)});
}

void CuttingProxy::Network::Take(Connection& connection, int from, Lane& lane)
{
    while (!connection.isEnding && lane.held < MostHeld) {
        std::array<char, 8192> buffer{};
        const ssize_t count = read(from, buffer.data(), buffer.size());
        if (count > 0)
            Hold(connection, lane, QByteArray(buffer.data(), qsizetype(count)));
        else if (count == 0 || (errno != EAGAIN && errno != EINTR))
            End(connection, lane, Clock::now() + m_delay);
        else
            return;
    }
}

void CuttingProxy::Network::Hold(Connection& connection, Lane& lane, QByteArray bytes)
{
    const std::optional<qsizetype> cut = PlaceOfCut(lane, bytes);
    if (cut)
        bytes.truncate(*cut);
    Count(lane, bytes.size());
    const Clock::time_point due = Clock::now() + m_delay;
    lane.held += bytes.size();
    if (!bytes.isEmpty())
        lane.pieces.push_back({bytes, due});
    if (!cut)
        return;
    ++m_cuts;
    End(connection, lane, due);
}

void CuttingProxy::Network::Count(const Lane& lane, qsizetype bytes)
{
    m_bytes[size_t(lane.direction)] += bytes;
    const bool isClient = lane.direction == Direction::ToServer;
    if (isClient && !m_clientSpokeLast)
        ++m_roundTrips;
    m_clientSpokeLast = isClient;
}

// How many of the bytes still arrive before the connection is cut; nothing if it is not.
std::optional<qsizetype> CuttingProxy::Network::PlaceOfCut(Lane& lane, const QByteArray& bytes)
{
    if (m_length && m_length->direction == lane.direction) {
        if (m_length->left <= bytes.size()) {
            const auto place = qsizetype(m_length->left);
            m_length.reset();
            return place;
        }
        m_length->left -= bytes.size();
    }
    if (!m_text || m_text->direction != lane.direction)
        return std::nullopt;
    const QByteArray all = lane.seen + bytes;
    const qsizetype place = all.indexOf(m_text->text);
    if (place < 0) {
        lane.seen = all.right(m_text->text.size() - 1);
        return std::nullopt;
    }
    const bool arrives = m_text->cut == Cut::AfterIt;
    m_text.reset();
    return arrives ? bytes.size() : std::max<qsizetype>(0, place - lane.seen.size());
}

void CuttingProxy::Network::End(Connection& connection, Lane& lane, Clock::time_point due)
{
    connection.isEnding = true;
    lane.pieces.push_back({{}, due});
}

void CuttingProxy::Network::Deliver(Connection& connection, int to, Lane& lane)
{
    lane.isFull = false;
    while (!connection.isOver && !lane.pieces.empty() && lane.pieces.front().due <= Clock::now()) {
        Piece& piece = lane.pieces.front();
        const ssize_t count = send(to, piece.bytes.constData(), size_t(piece.bytes.size()), MSG_NOSIGNAL);
        if (piece.bytes.isEmpty() || (count < 0 && errno != EAGAIN && errno != EINTR)) {
            connection.isOver = true;
        } else if (count < piece.bytes.size()) {
            piece.bytes.remove(0, std::max<qsizetype>(0, count));
            lane.held -= std::max<qsizetype>(0, count);
            lane.isFull = true;
            return;
        } else {
            lane.held -= piece.bytes.size();
            lane.pieces.pop_front();
        }
    }
}

void CuttingProxy::Network::CutAll()
{
    m_cuts += int(m_connections.size());
    m_connections.clear();
}

} // namespace Orvane::Testing
