// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerErrors.h"

#include "store/StoreTexts.h"
#include "store/shared/StoreErrors.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <libpq-fe.h>

namespace Orvane {

namespace {

constexpr const char* WrongPassword = "28P01";

constexpr int MostLetters = 1000; // of what a server says

struct KnownState {
    const char* state; // or how it begins
    ErrorNumber number;
    const char* text;
};

constexpr KnownState KnownStates[] = {
    {"08", ErrorNumber::ConnectionLost, StoreTexts::ConnectionLost},
    {"57P", ErrorNumber::ConnectionLost, StoreTexts::ConnectionLost},
    {"25P03", ErrorNumber::ConnectionLost, StoreTexts::ConnectionLost}, // idle for too long
    {"53300", ErrorNumber::ConnectionLost, StoreTexts::ServerFull},
    {"28", ErrorNumber::DatabaseFailure, StoreTexts::LoginRefused},
    {"3D000", ErrorNumber::DatabaseFailure, StoreTexts::CannotOpen},
    {"3F000", ErrorNumber::DatabaseFailure, StoreTexts::CannotOpen},
    {"42501", ErrorNumber::DatabaseReadOnly, StoreTexts::NotAllowed},
    {"25006", ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly},
    {"55P03", ErrorNumber::DatabaseLocked, StoreTexts::Locked},
    {"40001", ErrorNumber::DatabaseLocked, StoreTexts::Locked},
    {"40P01", ErrorNumber::DatabaseLocked, StoreTexts::Locked},
    {"57014", ErrorNumber::DatabaseLocked, StoreTexts::Locked}, // the server's own limit
    {"53100", ErrorNumber::DatabaseFailure, StoreTexts::DiskFull},
    {"53200", ErrorNumber::DatabaseFailure, StoreTexts::ServerMemory},
    {"22P02", ErrorNumber::TypeMismatch, StoreTexts::ValueRefused},
    {"22021", ErrorNumber::TypeMismatch, StoreTexts::ValueRefused},
    {"22003", ErrorNumber::Overflow, StoreTexts::ValueRefused},
    {"42P05", ErrorNumber::DatabaseFailure, StoreTexts::ConnectionShared}, // somebody else has prepared it
    {"26000", ErrorNumber::DatabaseFailure, StoreTexts::ConnectionShared}, // ... or forgotten it
    {"XX001", ErrorNumber::NotALayerDatabase, StoreTexts::Damaged},
    {"XX002", ErrorNumber::NotALayerDatabase, StoreTexts::Damaged},
};

QByteArray FieldOf(const PGresult* result, int field)
{
    return PQresultErrorField(result, field);
}

ServerError ErrorOfState(const StoreErrors& errors, const QByteArray& state, const QString& message)
{
    const auto known
        = std::find_if(std::begin(KnownStates), std::end(KnownStates), [&](const KnownState& entry) {
              return state.startsWith(entry.state);
          });
    if (known != std::end(KnownStates))
        return {errors.Error(known->number, known->text, message), state};
    return {errors.Failure(StoreTexts::Refused, message), state};
}

/// What libpq says about a connection that failed, when it was asked to name codes. It has a line for each
/// attempt, such as "... failed: FATAL:  28P01: password authentication failed".
struct ConnectionFailure {
    QByteArray state;
    QString message;
};

ConnectionFailure FailureOf(pg_conn* connection)
{
    static const QRegularExpression Coded(QStringLiteral("(?:^|:\\s+)\\S+:\\s\\s([0-9A-Z]{5}): (.*)$"));
    ConnectionFailure failure;
    for (const QString& line : QString::fromUtf8(PQerrorMessage(connection)).trimmed().split(u'\n')) {
        const QRegularExpressionMatch match = Coded.match(line);
        if (match.hasMatch())
            failure = {match.captured(1).toLatin1(), match.captured(2).trimmed()};
        else if (failure.state.isEmpty() && !line.startsWith(u'\t')) // a line that is set in is a hint
            failure.message = line.trimmed();
    }
    failure.message.truncate(MostLetters);
    return failure;
}

// libpq's own messages are in the language of the system.
bool IsAboutSecurity(const QString& message)
{
    if (message.contains(QLatin1String("SYSCALL"))) // the network broke on the way
        return false;
    for (const QLatin1String part : {QLatin1String("ertifi"), QLatin1String("SSL"), QLatin1String("TLS")}) {
        if (message.contains(part))
            return true;
    }
    return false;
}

} // namespace

ServerError ErrorOfResult(const StoreErrors& errors, const pg_result* result)
{
    const QString message = QString::fromUtf8(FieldOf(result, PG_DIAG_MESSAGE_PRIMARY)).left(MostLetters);
    ServerError error = ErrorOfState(errors, FieldOf(result, PG_DIAG_SQLSTATE), message);
    if (FieldOf(result, PG_DIAG_SOURCE_FUNCTION) == "RevalidateCachedQuery")
        error.SetStale();
    return error;
}

bool IsRefusedByServer(pg_conn* connection)
{
    const QByteArray state = FailureOf(connection).state;
    const bool isUnusable = state.startsWith("57P") || state.startsWith("08") || state.startsWith("53");
    return PQconnectionNeedsPassword(connection) || (!state.isEmpty() && !isUnusable);
}

ServerError ErrorOfConnecting(const StoreErrors& errors, pg_conn* connection)
{
    const auto [state, message] = FailureOf(connection);
    if (PQconnectionNeedsPassword(connection))
        return {errors.Failure(StoreTexts::LoginRefused, message), WrongPassword};
    if (!state.isEmpty() && !state.startsWith("57P") && !state.startsWith("08"))
        return ErrorOfState(errors, state, message);
    if (IsAboutSecurity(message))
        return {errors.Failure(StoreTexts::NotSecure, message), {}};
    return {errors.Error(ErrorNumber::ConnectionLost, StoreTexts::CannotConnect, message), state};
}

ServerError ErrorOfLoss(const StoreErrors& errors, pg_conn* connection)
{
    const QString message = FailureOf(connection).message;
    return {errors.Error(ErrorNumber::ConnectionLost, StoreTexts::ConnectionLost, message), {}};
}

} // namespace Orvane
