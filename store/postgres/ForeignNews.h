// SPDX-License-Identifier: MIT
#pragma once

#include "store/IChangeNews.h"
#include "store/postgres/NewsGathering.h"
#include "store/postgres/Reconnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/MapNews.h"

#include <QDateTime>
#include <QSet>
#include <QSocketNotifier>
#include <QTimer>

#include <cstddef>
#include <memory>
#include <optional>

namespace Orvane {

class ServerConnection;
struct PostgresSession;

/// The news of a map on a server: the server tells them while the program is in its event loop. Now and then
/// it is asked for what was missed, such as while the connection was broken, and for who has the map open.
/// None of that waits for the server.
class ForeignNews final : public IChangeNews
{
public:
    /// The session outlives this object.
    explicit ForeignNews(PostgresSession& session);
    /// Tells the others that this program closes the map.
    ~ForeignNews() override;

    void SetListener(Listener listener) override;
    QStringList Users() const override { return m_users; }
    Link State() const override;
    void TryAgain() override;

private:
    /// A question that is under way: its pipeline, and what its statements are for.
    struct Question {
        explicit Question(ServerConnection& connection) : pipeline(connection) { }

        ServerPipeline pipeline;
        size_t snapshot = 0;
        size_t users = 0;
        std::optional<size_t> missed;
        std::optional<size_t> mayPrune;
    };

    ServerConnection& Connection() const;
    bool MustWait() const;
    void WakeSoon();
    void Wake() noexcept;
    void Look();
    void NoteLoss();
    void ListenHere();
    void Ask();
    void AddMissed(Question& question);
    template <typename Act> void OrAskLater(Act act);
    void TakeAnswer();
    void TakeMissed(const ServerRows& rows);
    void TakeNotices();
    void FollowTables();
    void TellSoon();
    void Tell();
    void TellState();
    void SayFarewell() noexcept;

    PostgresSession& m_session;
    Listener m_listener;
    Reconnection m_reconnection;
    QTimer m_wake; // looks at the connection
    QTimer m_tell; // gathers what belongs together
    QTimer m_ask; // asks for what was missed
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<Question> m_question; // ends before the connection
    NewsGathering m_gathered;
    MapNews::Snapshot m_seen; // everything before it was told
    QDateTime m_seenAt;
    QSet<qint64> m_told; // by notices since then
    QStringList m_users;
    Link m_toldState = Link::Present;
    quint64 m_number = 0; // of the connection that listens
    int m_asked = 0; // questions that were answered on this connection
    bool m_mayPrune = false;
    bool m_wantsUsers = false;
    bool m_wantsTables = false;
};

} // namespace Orvane
