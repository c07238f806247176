// SPDX-License-Identifier: MIT
#include "store/postgres/ServerTransaction.h"

#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/link/TransactionToken.h"
#include "store/shared/WorkWatch.h"

#include <algorithm>

namespace Orvane {

namespace {

using ServerState = ServerConnection::State;

const QByteArray BeginStatement = QByteArrayLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ");
const QByteArray StepName = QByteArrayLiteral("orvane_step");

QByteArray LevelName(int level)
{
    return "orvane_level" + QByteArray::number(level);
}

} // namespace

bool ServerTransaction::IsBroken() const
{
    return m_isUncertain || m_connection.IsLost()
        || (m_levels > 0 && m_connection.TransactionState() == ServerState::Idle);
}

bool ServerTransaction::IsLost() const
{
    return IsBroken() || (m_levels > 0 && m_connection.TransactionState() != ServerState::InTransaction);
}

void ServerTransaction::Plan()
{
    m_plannedLevels = m_levels;
    m_plannedPatience = m_patience;
}

void ServerTransaction::AddLevels(ServerPipeline& pipeline, int level)
{
    while (m_plannedLevels < level) {
        ++m_plannedLevels;
        if (m_plannedLevels > 1)
            pipeline.Add("SAVEPOINT " + LevelName(m_plannedLevels));
        else
            AddBeginning(pipeline);
    }
}

void ServerTransaction::AddBeginning(ServerPipeline& pipeline) const
{
    pipeline.AddOnce(BeginStatement);
    AddToken(pipeline);
}

void ServerTransaction::AddToken(ServerPipeline& pipeline) const
{
    if (!m_token.isEmpty())
        pipeline.Add(TransactionToken::Setting(), {m_token});
}

// 0 would stand for no limit.
void ServerTransaction::AddPatience(ServerPipeline& pipeline, std::chrono::milliseconds left)
{
    const qint64 patience = std::max(qint64(1), qint64(left.count()));
    if (m_plannedPatience == patience)
        return;
    pipeline.AddOnce("SET lock_timeout = " + QByteArray::number(patience));
    m_plannedPatience = patience;
}

size_t
ServerTransaction::AddStep(ServerPipeline& pipeline, const QByteArray& sql, const ServerValues& values) const
{
    if (m_plannedLevels == 0)
        return pipeline.Add(sql, values);
    pipeline.Add("SAVEPOINT " + StepName);
    const size_t statement = pipeline.Add(sql, values);
    pipeline.Add("RELEASE " + StepName);
    return statement;
}

void ServerTransaction::NoteAnswer(bool isDone)
{
    m_isUncertain = !isDone;
    if (!isDone)
        return;
    m_levels = m_plannedLevels;
    m_patience = m_plannedPatience;
}

void ServerTransaction::UndoStep()
{
    if (m_levels == 0 || IsBroken())
        return;
    const bool isFailed = m_connection.TransactionState() == ServerState::Failed;
    m_isUncertain = true;
    if (!isFailed)
        return;
    const WorkWatch::Pause whole(m_connection.Watch());
    ServerPipeline pipeline(m_connection);
    pipeline.Add("ROLLBACK TO " + StepName);
    pipeline.Add("RELEASE " + StepName);
    pipeline.Finish();
    m_isUncertain = false;
}

QByteArray ServerTransaction::Release()
{
    return "RELEASE " + LevelName(m_levels--);
}

ServerRows ServerTransaction::RollBackLevel(const QByteArray& question)
{
    const WorkWatch::Pause whole(m_connection.Watch());
    const QByteArray name = LevelName(m_levels);
    m_isUncertain = true;
    m_patience.reset();
    ServerPipeline pipeline(m_connection);
    pipeline.Add("ROLLBACK TO " + name);
    pipeline.Add("RELEASE " + name);
    const size_t answer = pipeline.Add(question);
    pipeline.Finish();
    --m_levels;
    m_isUncertain = false;
    return pipeline.Answer(answer);
}

void ServerTransaction::RollBack()
{
    m_patience.reset();
    End("ROLLBACK");
}

void ServerTransaction::NoteEnd()
{
    m_isUncertain = false;
    m_levels = 0;
}

void ServerTransaction::End(const char* statement)
{
    NoteEnd();
    if (m_connection.IsLost() || m_connection.TransactionState() == ServerState::Idle)
        return;
    try {
        m_connection.EndTransactionLater(statement);
    } catch (const ServerError&) {
        if (!m_connection.IsLost())
            throw;
    }
}

} // namespace Orvane
