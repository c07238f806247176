// SPDX-License-Identifier: MIT
#include "store/postgres/ForeignNews.h"

#include "store/postgres/PostgresSession.h"
#include "store/postgres/maps/MapPresence.h"
#include "store/postgres/maps/NoteFunction.h"

#include <QEvent>
#include <QScopeGuard>

#include <chrono>
#include <utility>

namespace Orvane {

namespace {

using namespace std::chrono_literals;

constexpr auto GatheringTime = 100ms; // one action of somebody may be many statements
constexpr auto BusyPause = 100ms; // while the session is in the middle of something
constexpr auto AnswerTurn = 1s; // between two looks for an answer that the socket has not announced
constexpr auto AskingTime = 30s; // a program that crashed tells nobody that it has left
constexpr auto StandbyAskingTime = 2s; // a standby tells nothing by itself
constexpr int AsksBetweenPrunings = 120;

std::string_view TextIn(const ServerRows& rows, int row, int column)
{
    return rows.Raw(row, column);
}

/// Wakes a timer when there is something to read on a socket, and waits then until it is enabled again.
class ReadableSocket final : public QSocketNotifier
{
public:
    ReadableSocket(int socket, QTimer& timer) : QSocketNotifier(socket, Read), m_timer(timer) { }

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::SockAct)
            return QSocketNotifier::event(event);
        setEnabled(false);
        m_timer.start(0);
        return true;
    }

private:
    QTimer& m_timer;
};

template <typename Slot> void Join(QTimer& timer, Slot slot)
{
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &timer, slot);
}

} // namespace

ForeignNews::ForeignNews(PostgresSession& session)
    : m_session(session), m_reconnection(session, [this] {
          TellState();
          WakeSoon();
      })
{
    Join(m_wake, [this] { Wake(); });
    Join(m_tell, [this] { Tell(); });
    Join(m_ask, [this] {
        m_wantsUsers = true;
        Wake();
    });
}

ForeignNews::~ForeignNews()
{
    m_listener = {};
    Connection().SetListener({});
    SayFarewell();
}

ServerConnection& ForeignNews::Connection() const
{
    return *m_session.connection;
}

void ForeignNews::SetListener(Listener listener)
{
    m_listener = {}; // nobody is called from within this call
    Connection().SetListener([this] { WakeSoon(); });
    const auto set = qScopeGuard([&] { m_listener = std::move(listener); });
    try {
        m_session.transactions.RequireIntact();
        if (m_number == Connection().Number())
            return;
        ListenHere();
        OrAskLater([this] { m_question->pipeline.Await(); }); // from here on nothing is missed
        TakeAnswer();
    } catch (...) {
        WakeSoon();
        throw;
    }
}

IChangeNews::Link ForeignNews::State() const
{
    if (!Connection().IsLost())
        return Link::Present;
    return m_reconnection.IsTrying() ? Link::Trying : Link::Lost;
}

// Whoever presses the button can wait, and can type a password.
void ForeignNews::TryAgain()
{
    if (!m_reconnection.NeedsPassword()) {
        m_reconnection.TryNow();
        return;
    }
    try {
        m_session.transactions.RequireIntact();
    } catch (...) { // State tells
    }
    WakeSoon();
}

// In the middle of an exchange, or of a transaction, nothing else can be asked.
bool ForeignNews::MustWait() const
{
    return m_session.watch.IsAsking() || m_session.transactions.IsOpen();
}

// A socket that is closed, or would tell the same all the time, is not looked at until then.
void ForeignNews::WakeSoon()
{
    if (m_readable)
        m_readable->setEnabled(false);
    m_wake.start(0ms);
}

// Runs in the event loop, which no exception may reach. What goes wrong with the connection is its state.
void ForeignNews::Wake() noexcept
{
    try {
        const WorkWatch::Pause whole(m_session.watch);
        if (!MustWait())
            return Look();
        if (m_readable)
            m_readable->setEnabled(false);
        m_wake.start(BusyPause);
    } catch (...) {
        if (Connection().IsLost())
            m_wake.start(BusyPause);
    }
}

void ForeignNews::Look()
{
    if (Connection().IsLost())
        return NoteLoss();
    if (m_number != Connection().Number()) {
        m_reconnection.NoteConnected();
        ListenHere();
    }
    m_readable->setEnabled(true);
    TakeAnswer();
    TakeNotices();
    if (std::exchange(m_wantsTables, false))
        FollowTables();
    if (m_wantsUsers && !m_question)
        Ask();
    TellState();
}

void ForeignNews::NoteLoss()
{
    m_question.reset();
    m_readable.reset();
    m_ask.stop();
    m_reconnection.Begin();
    TellState();
}

void ForeignNews::ListenHere()
{
    m_question.reset();
    m_number = Connection().Number();
    m_asked = 0;
    m_told.clear();
    m_readable = std::make_unique<ReadableSocket>(Connection().Socket(), m_wake);
    Ask();
}

// A question that cannot be asked, or is refused, is dropped.
template <typename Act> void ForeignNews::OrAskLater(Act act)
{
    try {
        act();
    } catch (...) {
        m_question.reset();
        m_ask.start(AskingTime);
        throw;
    }
}

// The first question on a connection listens, before it looks at what is there.
void ForeignNews::Ask()
{
    m_wantsUsers = false;
    m_question = std::make_unique<Question>(Connection());
    ServerPipeline& pipeline = m_question->pipeline;
    if (m_asked == 0 && !m_session.isStandby) {
        pipeline.AddOnce("BEGIN");
        pipeline.AddOnce("LISTEN " + NoteFunction::Channel(m_session.map));
        pipeline.AddOnce(MapPresence::Announcing(m_session.map));
        pipeline.AddOnce("COMMIT");
    }
    if (m_asked == 0)
        m_question->mayPrune = pipeline.AddOnce(MapNews::MayPruneQuery());
    m_question->users = pipeline.AddOnce(MapPresence::UsersQuery());
    m_question->snapshot = pipeline.AddOnce(MapNews::SnapshotQuery());
    if (!m_seen.isEmpty())
        AddMissed(*m_question);
    if (m_mayPrune && m_asked % AsksBetweenPrunings == 1)
        pipeline.AddOnce(MapNews::Pruning());
    OrAskLater([&] { pipeline.Start(); });
    m_wake.start(AnswerTurn);
}

// On a new connection one's own changes are news too: whether the last one was stored may be unknown.
void ForeignNews::AddMissed(Question& question)
{
    if (m_seenAt.secsTo(QDateTime::currentDateTimeUtc()) > MapNews::TimeKept)
        return m_gathered.AddAll();
    const QByteArray left = m_asked == 0 ? QByteArray() : m_session.OwnTokens();
    question.missed = question.pipeline.AddOnce(MapNews::MissedQuery(), MapNews::MissedValues(m_seen, left));
}

void ForeignNews::TakeAnswer()
{
    if (!m_question)
        return;
    bool isAnswered = false;
    OrAskLater([&] { isAnswered = m_question->pipeline.IsAnswered(); });
    if (!isAnswered) {
        m_wake.start(AnswerTurn);
        return;
    }
    ++m_asked;
    const std::unique_ptr<Question> question = std::move(m_question);
    const ServerPipeline& answered = question->pipeline;
    m_ask.start(m_session.isStandby ? StandbyAskingTime : AskingTime);
    if (question->mayPrune)
        m_mayPrune = !m_session.isReadOnly && answered.Answer(*question->mayPrune).Flag(0, 0);
    if (question->missed)
        TakeMissed(answered.Answer(*question->missed));
    const std::string_view snapshot = TextIn(answered.Answer(question->snapshot), 0, 0);
    m_seen = QByteArray(snapshot.data(), int(snapshot.size()));
    m_seenAt = QDateTime::currentDateTimeUtc();
    const QStringList users = MapPresence::RolesOf(
        MapPresence::UsersIn(answered.Answer(question->users)), m_session.map, Connection().Backend());
    if (std::exchange(m_users, users) != users && m_listener.stateChanged)
        m_listener.stateChanged();
}

// Notices may have told some of them already.
void ForeignNews::TakeMissed(const ServerRows& rows)
{
    QSet<qint64> told;
    if (rows.Count() > MapNews::MostMissed)
        m_gathered.AddAll();
    for (int row = 0; row < rows.Count(); ++row) {
        const qint64 id = rows.Number(row, 0);
        told.insert(id);
        if (!m_told.contains(id))
            m_gathered.Add(TextIn(rows, row, 1), TextIn(rows, row, 2));
    }
    m_told = told;
    TellSoon();
}

void ForeignNews::TakeNotices()
{
    for (const ServerNotice& notice : Connection().TakeNotices()) {
        if (notice.backend == Connection().Backend())
            continue;
        if (notice.payload == NoteFunction::SchemaChanged)
            m_wantsTables = true;
        else if (notice.payload == MapPresence::UsersChanged)
            m_wantsUsers = true;
        else
            m_told.insert(m_gathered.AddNotice(notice.payload));
    }
    TellSoon();
}

// A map that this program no longer understands is not used any more.
void ForeignNews::FollowTables()
{
    const ServerConnection::Haste haste(Connection());
    try {
        m_session.FollowTables();
        m_gathered.AddAll();
        TellSoon();
    } catch (const RunTimeError& error) {
        if (!Connection().IsLost())
            Connection().GiveUp(error);
        throw;
    }
}

void ForeignNews::TellSoon()
{
    if (m_gathered.IsEmpty())
        return;
    m_session.transactions.NoteForeignChange();
    if (!m_tell.isActive())
        m_tell.start(GatheringTime);
}

void ForeignNews::Tell()
{
    if (MustWait()) {
        m_tell.start(BusyPause);
        return;
    }
    const ForeignChange change = m_gathered.Take();
    if (m_listener.changed)
        m_listener.changed(change);
}

void ForeignNews::TellState()
{
    const Link state = State();
    if (std::exchange(m_toldState, state) != state && m_listener.stateChanged)
        m_listener.stateChanged();
}

// Nobody waits for it; who does not hear it asks some time.
void ForeignNews::SayFarewell() noexcept
{
    try {
        if (m_number != Connection().Number() || Connection().IsLost() || m_question || MustWait())
            return;
        ServerPipeline farewell(Connection());
        farewell.AddOnce(MapPresence::Leaving(m_session.map));
        if (!m_session.isStandby)
            farewell.AddOnce(MapPresence::Announcing(m_session.map));
        farewell.Start();
    } catch (...) { // the connection ends in any case
    }
}

} // namespace Orvane
