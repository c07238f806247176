// SPDX-License-Identifier: MIT
#include "store/postgres/PostgresSession.h"

#include "store/StoreTexts.h"
#include "store/postgres/ForeignNews.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/MapCatalogue.h"
#include "store/postgres/maps/MapPresence.h"
#include "store/postgres/maps/MapSchema.h"
#include "store/postgres/maps/SoundSchema.h"

#include <OrvaneShellLib/Cancellation.h>

namespace Orvane {

namespace {

// Whatever the role, the database or the server has set.
void AddSettings(ServerPipeline& pipeline, OpenMode mode)
{
    for (const char* setting :
         {"standard_conforming_strings = on", "row_security = off", "datestyle = 'ISO'",
          "extra_float_digits = 1", "lock_timeout = '5s'", "default_transaction_isolation = 'read committed'",
          "default_transaction_deferrable = off", "statement_timeout = 0",
          "idle_in_transaction_session_timeout = '60s'"})
        pipeline.AddOnce(QByteArray("SET ") + setting);
    pipeline.AddOnce(
        mode == OpenMode::ReadOnly ? "SET default_transaction_read_only = on"
                                   : "SET default_transaction_read_only = off");
}

// No row without such a schema; NULL without such a table, and false where the user may not use it.
const QByteArray MapQuestion = QByteArrayLiteral(
    "SELECT has_schema_privilege(n.oid, 'USAGE') AND has_table_privilege(c.oid, 'SELECT'),"
    " has_table_privilege(l.oid, 'UPDATE') AND NOT pg_is_in_recovery(), n.oid, pg_is_in_recovery()"
    " FROM pg_catalog.pg_namespace n"
    " LEFT JOIN pg_catalog.pg_class c ON c.relnamespace = n.oid AND c.relname = 'orvane_map' AND c.relkind = "
    "'r'"
    " LEFT JOIN pg_catalog.pg_class l ON l.relnamespace = n.oid AND l.relname = 'layers' AND l.relkind = 'r'"
    " WHERE n.nspname = $1");

} // namespace

PostgresSession::PostgresSession(const ServerPlace& where, OpenMode access, const StoreOptions& options)
    : place(where), mode(access), connection(ServerConnection::Connect(where, options, watch)),
      tables(*connection), changes(*connection, tables),
      transactions(*connection, changes, options.busyTimeout, [this] { StartAgain(); })
{
    Start();
}

PostgresSession::~PostgresSession() = default;

// Nothing may use a connection that is not prepared.
void PostgresSession::StartAgain()
{
    try {
        Start();
    } catch (const RunTimeError& error) {
        if (error.Number() != int(UserCancelled))
            connection->GiveUp(error);
        else if (!connection->IsLost())
            connection->GiveUp();
        throw;
    } catch (...) {
        connection->GiveUp();
        throw;
    }
}

// Nothing of the map is read before it is known to be sound, and until then its schema is not in the search
// path.
void PostgresSession::Start()
{
    ServerPipeline pipeline(*connection);
    AddSettings(pipeline, mode);
    const size_t question = pipeline.AddOnce(MapQuestion, {place.schema.toUtf8()});
    const size_t soundness = pipeline.AddOnce(SoundSchema::Query(), SoundSchema::Values(place.schema));
    pipeline.Finish();
    const ServerRows& rights = pipeline.Answer(question);
    if (rights.Count() == 0)
        throw Errors().Failure(StoreTexts::MissingFile);
    if (rights.IsNull(0, 0))
        throw Errors().Error(ErrorNumber::NotALayerDatabase, StoreTexts::NotALayerDatabase);
    if (!rights.Flag(0, 0))
        throw Errors().Failure(StoreTexts::MapNotReadable);
    SoundSchema::Require(pipeline.Answer(soundness), Errors());
    isReadOnly = mode == OpenMode::ReadOnly || !rights.Flag(0, 1);
    map = quint32(rights.Number(0, 2));
    isStandby = rights.Flag(0, 3);
    const qint32 version = ReadMap();
    RequireKnownVersion(version);
    if (version < MapSchema::CurrentVersion && !isReadOnly) {
        MapCatalogue::Migrate(*connection, place.schema);
        tables.Forget();
    }
}

// Returns the map's version, which nobody changes from now on.
qint32 PostgresSession::ReadMap()
{
    ServerPipeline pipeline(*connection);
    const QByteArray name = place.schema.toUtf8();
    pipeline.AddOnce(MapPresence::Joining(map));
    const size_t version = pipeline.AddOnce(
        "SELECT m.version, c.relnamespace FROM " + QuotedName(place.schema)
        + ".orvane_map AS m JOIN pg_class AS c ON c.oid = m.tableoid");
    const size_t known = pipeline.AddOnce(KnownTables::Query(place.schema), {name});
    size_t prepared = 0;
    if (!isReadOnly) {
        pipeline.AddOnce("SET orvane.token = '" + transactions.Token().Text() + '\'');
        for (const QByteArray& statement : ServerChangeLog::Preparation())
            prepared = pipeline.AddOnce(statement);
    }
    pipeline.AddOnce("SET search_path = " + MapSchema::SearchPath(place.schema));
    pipeline.Finish();
    if (quint32(pipeline.Answer(version).Number(0, 1)) != map) // it was replaced since it was looked at
        throw Errors().Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    tables.Take(pipeline.Answer(known));
    if (!isReadOnly)
        changes.TakePreparation(pipeline.Answer(prepared));
    return qint32(pipeline.Answer(version).Number(0, 0));
}

void PostgresSession::RequireWritable() const
{
    if (isReadOnly)
        throw Errors().Error(ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly);
}

void PostgresSession::Tell(const QString& sql) const
{
    if (!listener)
        return;
    try {
        listener(sql);
    } catch (...) { // it is not the statement's fault
    }
}

void PostgresSession::Tell(const QByteArray& sql) const
{
    if (listener)
        Tell(QString::fromUtf8(sql).replace(u'$', u'?'));
}

void PostgresSession::ForgetTables()
{
    tables.Forget();
    hasNewTables = true;
}

void PostgresSession::FollowTables()
{
    ServerPipeline pipeline(*connection);
    pipeline.AddOnce(QByteArray("SET search_path = ") + ServerConnection::SafePath);
    const size_t soundness = pipeline.AddOnce(SoundSchema::Query(), SoundSchema::Values(place.schema));
    const size_t version
        = pipeline.AddOnce("SELECT version FROM " + QuotedName(place.schema) + ".orvane_map");
    pipeline.AddOnce("SET search_path = " + MapSchema::SearchPath(place.schema));
    pipeline.Finish();
    tables.Forget();
    SoundSchema::Require(pipeline.Answer(soundness), Errors());
    RequireKnownVersion(qint32(pipeline.Answer(version).Number(0, 0)));
}

void PostgresSession::RequireKnownVersion(qint32 version) const
{
    if (version > MapSchema::CurrentVersion)
        throw Errors().Error(ErrorNumber::DatabaseTooNew, StoreTexts::TooNew);
}

ForeignNews& PostgresSession::News()
{
    if (!m_news)
        m_news = std::make_unique<ForeignNews>(*this);
    return *m_news;
}

} // namespace Orvane
