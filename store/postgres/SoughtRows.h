// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/RowsAhead.h"
#include "store/postgres/link/ServerValue.h"

#include <QByteArray>

#include <optional>

namespace Orvane {

struct PostgresSession;

/// A table whose rows are looked up by a key.
struct SoughtTable {
    const char* name; ///< as the server has it, like the others but the index
    const char* indexName; ///< as callers write it
    const char* keyColumn;
};

inline constexpr SoughtTable SoughtLayers{"layers", "LayerIDIDX", "layerid"};
inline constexpr SoughtTable SoughtGroups{"layergroups", "IDIDX", "id"};

/// The rows of such a table in one session. Within a transaction, rows may be read before they are sought;
/// outside of one too, as long as the present action of the user runs. Where no event loop tells when an
/// action ends, each row is read when it is sought.
class SoughtRows final : private ITableRows
{
public:
    /// The session outlives this object.
    SoughtRows(PostgresSession& session, const SoughtTable& table);
    SoughtRows(const SoughtRows&) = delete;
    SoughtRows& operator=(const SoughtRows&) = delete;

    const SoughtTable& Table() const { return m_table; }
    RowsAhead& Ahead() { return m_ahead; }

    /// The caller has got values of rows that were found with that stamp.
    void NoteShown(quint64 stamp) { m_shown = stamp; }
    /// True if the caller may know values of this state: those of rows with that stamp, or of a query.
    bool MayBeKnown(quint64 stamp) const;

private:
    ServerRows Rows(const std::vector<qint32>& keys, Written written) override;
    ServerRows RowsFrom(qint32 key, int count, Written written) override;
    quint64 State() override;
    bool MayKeep() const override;

    ServerRows Read(const QByteArray& sql, const ServerValues& values, Written written);

    PostgresSession& m_session;
    const SoughtTable& m_table;
    RowsAhead m_ahead;
    std::optional<quint64> m_shown;
    quint64 m_action = 0; // the last one outside of a transaction
    quint64 m_actions = 0; // how often that was another one
};

/// Notes which layers and groups a query gave: they are probably sought next, in that order.
void NoteKeysIn(PostgresSession& session, const ServerRows& rows);

} // namespace Orvane
