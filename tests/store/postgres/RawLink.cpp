// SPDX-License-Identifier: MIT
#include "store/postgres/RawLink.h"

#include <gtest/gtest.h>
#include <libpq-fe.h>
#include <memory>

namespace Orvane::Testing {

namespace {

using RawResult = std::unique_ptr<PGresult, decltype(&PQclear)>;

RawResult ResultOf(PGconn* link, const QByteArray& sql)
{
    return {PQexec(link, sql.constData()), &PQclear};
}

bool IsDone(const PGresult* result)
{
    const ExecStatusType status = PQresultStatus(result);
    return status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK || status == PGRES_EMPTY_QUERY;
}

std::string RowOf(const PGresult* result, int row)
{
    std::string text;
    for (int column = 0; column < PQnfields(result); ++column)
        text += (column > 0 ? "|" : "") + std::string(PQgetvalue(result, row, column));
    return text;
}

} // namespace

RawLink::RawLink(const QByteArray& connection) : m_link(PQconnectdb(connection.constData()))
{
    EXPECT_EQ(PQstatus(m_link), CONNECTION_OK) << PQerrorMessage(m_link);
    PQsetNoticeProcessor(
        m_link, [](void*, const char*) {}, nullptr);
}

// A server notices only later that a connection has ended, so what is open ends first.
RawLink::~RawLink()
{
    if (PQtransactionStatus(m_link) != PQTRANS_IDLE)
        ResultOf(m_link, "ROLLBACK");
    PQfinish(m_link);
}

void RawLink::Run(const QByteArray& sql)
{
    EXPECT_TRUE(IsDone(ResultOf(m_link, sql).get())) << sql.constData() << "\n" << PQerrorMessage(m_link);
}

void RawLink::RunTogether(const QByteArrayList& statements)
{
    Run("BEGIN");
    for (const QByteArray& sql : statements)
        Run(sql);
    Run("COMMIT");
}

std::string RawLink::Failure(const QByteArray& sql)
{
    const RawResult result = ResultOf(m_link, sql);
    const char* state = PQresultErrorField(result.get(), PG_DIAG_SQLSTATE);
    return state ? state : "";
}

std::string RawLink::Text(const QByteArray& sql)
{
    const std::vector<std::string> rows = Rows(sql);
    return rows.empty() ? std::string() : rows.front();
}

std::vector<std::string> RawLink::Rows(const QByteArray& sql)
{
    const RawResult result = ResultOf(m_link, sql);
    EXPECT_TRUE(IsDone(result.get())) << sql.constData() << "\n" << PQerrorMessage(m_link);
    std::vector<std::string> rows;
    rows.reserve(size_t(PQntuples(result.get())));
    for (int row = 0; row < PQntuples(result.get()); ++row)
        rows.push_back(RowOf(result.get(), row));
    return rows;
}

std::vector<std::string> RawLink::Notices()
{
    PQconsumeInput(m_link);
    std::vector<std::string> notices;
    while (PGnotify* notice = PQnotifies(m_link)) {
        notices.emplace_back(notice->extra);
        PQfreemem(notice);
    }
    return notices;
}

} // namespace Orvane::Testing
