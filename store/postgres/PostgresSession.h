// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/postgres/PostgresTransactions.h"
#include "store/postgres/ServerChangeLog.h"
#include "store/postgres/SoughtRows.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/postgres/maps/KnownTables.h"
#include "store/shared/ActionNumber.h"
#include "store/shared/WorkWatch.h"

#include <QString>

#include <functional>
#include <memory>

namespace Orvane {

class ForeignNews;

/// Everything that makes up one open map on a server; used by cursors.
struct PostgresSession {
    /// Connects and opens the map; see PostgresLayerDatabase::Open for what it raises.
    PostgresSession(const ServerPlace& where, OpenMode mode, const StoreOptions& options);
    ~PostgresSession();
    PostgresSession(const PostgresSession&) = delete;
    PostgresSession& operator=(const PostgresSession&) = delete;

    const StoreErrors& Errors() const { return connection->Errors(); }
    /// Raises DatabaseReadOnly if the map cannot be changed.
    void RequireWritable() const;
    /// Tells the listener the text of a caller's statement.
    void Tell(const QString& sql) const;
    /// As Tell, for a statement with $1 in place of ?1.
    void Tell(const QByteArray& sql) const;
    /// To be called when tables may have changed.
    void ForgetTables();
    /// To be called when somebody else has changed tables: raises what Open raises for a map that is not
    /// sound, or too new.
    void FollowTables();
    /// What the tokens of all transactions of this session begin with.
    QByteArray OwnTokens() const { return transactions.Token().Beginning(); }
    /// The news of the map; made at the first call.
    ForeignNews& News();

    const ServerPlace place;
    const OpenMode mode;
    WorkWatch watch;
    std::unique_ptr<ServerConnection> connection;
    KnownTables tables;
    ServerChangeLog changes;
    PostgresTransactions transactions;
    ActionNumber action;
    SoughtRows layers{*this, SoughtLayers};
    SoughtRows groups{*this, SoughtGroups};
    std::function<void(const QString& sql)> listener;
    quint32 map = 0; ///< the OID of the map's schema
    bool isReadOnly = true; ///< rows cannot be changed
    bool isStandby = false; ///< the server only repeats what another one does
    bool hasNewTables = false; ///< tables were changed, perhaps not for good

private:
    void Start();
    void StartAgain();
    qint32 ReadMap();
    void RequireKnownVersion(qint32 version) const;

    std::unique_ptr<ForeignNews> m_news; // ends before the connection
};

} // namespace Orvane
