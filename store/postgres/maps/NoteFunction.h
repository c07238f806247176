// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <array>

namespace Orvane {

struct StoreTable;

/// The function that the server runs after each statement that changed rows of a map, whoever sent it. It
/// tells the other programs that have the map open, see Channel, and keeps the changed rows for a session
/// that records them.
///
/// A session sets "orvane.records" to "on" to record, after it has made the table for it, see LogCreation;
/// and "orvane.token" to a UUID by which it finds its own transaction in orvane_news. Without rows nothing is
/// noted. After a hundred statements of a transaction only one more row of news follows, which stands for
/// everything.
namespace NoteFunction {

/// The name of the function.
inline constexpr const char* Name = "orvane_note";
/// What the server keeps as its text: the only one that a sound map has.
QByteArray Body();
/// Creates the function in the first schema of the search path.
QByteArray Creation();

/// A trigger of each table: its name, and the rest of its definition as the server keeps it.
struct Trigger {
    const char* name;
    const char* event; ///< as in SQL
    const char* rows; ///< which rows the function gets
};
/// The triggers of each table that a map has.
inline constexpr std::array AllTriggers{
    Trigger{"orvane_insert", "INSERT", "NEW TABLE AS new_rows"},
    Trigger{"orvane_update", "UPDATE", "OLD TABLE AS old_rows NEW TABLE AS new_rows"},
    Trigger{"orvane_delete", "DELETE", "OLD TABLE AS old_rows"},
};
/// Creates the triggers of that table.
QByteArrayList Triggers(const StoreTable& table);

/// Creates the table of this session that gets the changed rows until the end of each transaction. It holds
///
/// - statement: a number that grows within the transaction. tab: the table's OID.
/// - columns: in a row of its own for each statement, the numbers of the table's columns in their order.
/// - before, after: in the other rows, a row of the table as the server writes composite values. NULL for a
/// row that
///   was not there before or after. A row that got another key is two rows.
QByteArrayList LogCreation();

/// The channel of NOTIFY on which a map's news come, by the OID of its schema. A notice is "<id> <table>
/// <ids>": the number in orvane_news, the name of the table or "*" for all, and "*" for all or the numbers of
/// layers (of groups in layergroups), with commas between them.
QByteArray Channel(quint32 schema);

/// Tells all who have the map open that its tables have changed. They get the notice SchemaChanged.
QByteArray SchemaNotice();
/// What comes on a map's channel instead of news when tables have changed.
inline constexpr const char* SchemaChanged = "schema";

} // namespace NoteFunction

} // namespace Orvane
