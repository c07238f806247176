// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class Changeset;
class KnownTables;
class ServerConnection;

/// Applies recorded changes in the transaction that the connection is in. False if a row is not as the
/// changes expect it, if another row is in its place, or if a row would refer to one that is missing. After
/// that, or after an error, the transaction must be rolled back to where it was. Raises database errors, and
/// UserCancelled.
///
/// Rows that are changed alike are sent together; most changesets take one or two round trips.
bool ApplyChangeset(ServerConnection& connection, KnownTables& tables, const Changeset& changes);

} // namespace Orvane
