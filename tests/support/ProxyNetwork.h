// SPDX-License-Identifier: MIT
#pragma once

#include "support/CuttingProxy.h"
#include "support/UnixSocket.h"

#include <QTemporaryDir>

#include <array>
#include <deque>
#include <list>
#include <mutex>
#include <optional>
#include <poll.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace Orvane::Testing {

/// What was sent at once, and when it arrives. Without bytes it is the end of the connection.
struct Piece {
    QByteArray bytes;
    std::chrono::steady_clock::time_point due;
};

/// One direction of a connection.
struct Lane {
    CuttingProxy::Direction direction;
    std::deque<Piece> pieces;
    qsizetype held = 0; // bytes in pieces
    QByteArray seen; // the last bytes that were sent, where a text may begin
    bool isFull = false; // the receiver takes no more at present
};

struct Connection {
    Descriptor client;
    Descriptor server;
    Lane toServer{CuttingProxy::Direction::ToServer, {}, 0, {}, false};
    Lane toClient{CuttingProxy::Direction::ToClient, {}, 0, {}, false};
    bool isEnding = false; // nothing more is taken
    bool isOver = false;
};

struct TextToCutAt {
    QByteArray text;
    CuttingProxy::Cut cut;
    CuttingProxy::Direction direction;
};

struct LengthToCutAt {
    qint64 left;
    CuttingProxy::Direction direction;
};

enum class Mood { Passing, Silent, Refusing };

/// The connections of a CuttingProxy, and the thread that works on them.
class CuttingProxy::Network
{
public:
    explicit Network(const QString& serverSocket);
    ~Network();

    QString Folder() const { return m_folder.path(); }
    QString Socket() const;

    /// Calls change while the network stands still.
    template <typename Change> auto Do(Change change)
    {
        const std::lock_guard lock(m_mutex);
        Wake();
        return change();
    }
    /// Cuts the connections when the mutex is held.
    void CutAll();

    std::chrono::milliseconds m_delay{0};
    Mood m_mood = Mood::Passing;
    std::optional<LengthToCutAt> m_length;
    std::optional<TextToCutAt> m_text;
    std::array<qint64, 2> m_bytes{};
    int m_cuts = 0;
    int m_roundTrips = 0;
    bool m_clientSpokeLast = false;
    std::list<Connection> m_connections;

private:
    void Wake() { (void)!write(m_wakeEnd.Number(), "w", 1); }
    void Run();
    std::vector<pollfd> Watched();
    int Pause() const;
    void Work();
    void Accept();
    void Take(Connection& connection, int from, Lane& lane);
    void Hold(Connection& connection, Lane& lane, QByteArray bytes);
    void Count(const Lane& lane, qsizetype bytes);
    std::optional<qsizetype> PlaceOfCut(Lane& lane, const QByteArray& bytes);
    static void End(Connection& connection, Lane& lane, std::chrono::steady_clock::time_point due);
    void Deliver(Connection& connection, int to, Lane& lane);

    const QString m_serverSocket;
    QTemporaryDir m_folder;
    Descriptor m_listener;
    Descriptor m_wakeEnd;
    Descriptor m_wakened;
    std::mutex m_mutex; // of all that both threads use
    bool m_isOver = false;
    std::thread m_thread;
};

} // namespace Orvane::Testing
