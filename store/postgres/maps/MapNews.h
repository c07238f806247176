// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerValue.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QtGlobal>

namespace Orvane {

/// The news that a map keeps in its table orvane_news: asking for those that somebody has missed, and
/// removing old ones.
namespace MapNews {

/// What a session has seen: all transactions that were stored by then.
using Snapshot = QByteArray;

/// The query for the present snapshot.
QByteArray SnapshotQuery();

/// The query for the news of transactions that were stored since a snapshot, in their order: id, tab, ids.
/// Answers with one row more than MostMissed if there are too many.
inline constexpr int MostMissed = 1000;
QByteArray MissedQuery();
/// Its values. ownTokens: what the tokens of transactions begin with that are left out; empty for none.
ServerValues MissedValues(const Snapshot& seen, const QByteArray& ownTokens);

/// The query for whether the role may remove old news.
QByteArray MayPruneQuery();
/// Removes some of the news that are older than a day, beyond the newest ten thousand, unless somebody else
/// does so at this moment.
QByteArray Pruning();

/// How long news can be asked for at least, in seconds: less than they are kept.
inline constexpr qint64 TimeKept = 12LL * 60 * 60;

} // namespace MapNews

} // namespace Orvane
