// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class ServerConnection;
class ServerRows;

/// A column of a map's table.
struct KnownColumn {
    int number = 0; ///< in the server, never used again for another column of the table
    QString name; ///< as the server has it
    QString spelled; ///< as statements write it
    StoreType type = StoreType::Text; ///< Text for what is none of the others
    QByteArray serverType; ///< as the server names it
};

/// A table of a map.
struct KnownTable {
    quint32 number = 0; ///< the server's number (OID)
    QString name; ///< as the server has it
    QString spelled; ///< as statements write it
    std::vector<KnownColumn> columns; ///< in the table's order
    std::vector<int> keys; ///< positions in columns of the primary key, in its order; empty without one
    bool isNoted = false; ///< it has the triggers that tell and record changes, see NoteFunction

    /// The position of a column, in any case; -1 if there is none.
    int Find(const QString& column) const;
};

/// The tables of layers, of groups and of the host that a map in a server has, read once and kept until they
/// may have changed. The store's own tables, whose names begin with "orvane_", are not among them.
class KnownTables
{
public:
    /// The connection outlives this object. Its place names the map; whenever the tables are read, its search
    /// path is MapSchema::SearchPath afterwards.
    explicit KnownTables(ServerConnection& connection) : m_connection(connection) { }

    /// The query that Take reads, for a caller that sends it together with others, with the schema as its
    /// value, while the search path is ServerConnection::SafePath.
    static QByteArray Query(const QString& schema);
    /// Takes the answer.
    void Take(const ServerRows& rows);
    /// Reads the tables again when they are needed.
    void Forget() { m_isRead = false; }
    /// False if the tables must be read before they are known.
    bool IsRead() const { return m_isRead; }

    /// All tables, by name. Like Find and FindNumber it raises database errors if the tables must be read.
    const std::vector<KnownTable>& All();
    /// The table of that name, in any case; null if there is none. Valid until Forget or Take.
    const KnownTable* Find(const QString& name);
    /// The table with that number of the server; null if there is none. Valid until Forget or Take.
    const KnownTable* FindNumber(quint32 number);

private:
    void Read();

    ServerConnection& m_connection;
    std::vector<KnownTable> m_tables; // by name
    bool m_isRead = false;
};

/// The statements that make the table if it is missing, or add the columns and triggers that it lacks, and
/// tell others; empty if it is complete.
QByteArrayList StatementsToPrepare(KnownTables& tables, const StoreTable& table);

} // namespace Orvane
