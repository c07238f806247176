// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/RowUpdates.h"

#include <functional>
#include <utility>
#include <variant>
#include <vector>

namespace Orvane {

/// What a transaction is to write and the server has not got yet, in order. Each write belongs to a level of
/// the transaction: 1 is the outermost.
class PendingWrites
{
public:
    /// Adds a statement.
    void Add(const QByteArray& sql, const ServerValues& values, int level);
    /// Adds an update. It is sent together with others, and perhaps before them if they are of other rows.
    void Add(RowUpdate update, int level);

    bool IsEmpty() const { return m_writes.empty(); }
    /// True if so much has come together that it should be sent.
    bool AreMany() const;
    /// True if there are only updates of rows, which may be sent again after the transaction was begun again:
    /// see ExpectRowsAsRead.
    bool MayBeginAgain() const;
    /// From now on until Clear, rows must hold what they held when they were read.
    void ExpectRowsAsRead() { m_expect = RowUpdates::Expect::AsRead; }
    bool ExpectsRowsAsRead() const { return m_expect == RowUpdates::Expect::AsRead; }

    /// The levels above that one are rolled back.
    void DropAbove(int level);
    /// What belongs to levels above that one belongs to it now.
    void JoinAbove(int level);
    void Clear();

    /// Adds the statements; calls begin for the level of each before.
    void SendInto(ServerPipeline& pipeline, const std::function<void(int level)>& begin);

private:
    using Statement = std::pair<QByteArray, ServerValues>;
    struct Write {
        int level = 0;
        std::variant<Statement, RowUpdates> what;
    };

    RowUpdates* UpdatesFor(const RowUpdate& update, int level);

    std::vector<Write> m_writes;
    RowUpdates::Expect m_expect = RowUpdates::Expect::ARow;
};

} // namespace Orvane
