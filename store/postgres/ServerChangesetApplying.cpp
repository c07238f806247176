// SPDX-License-Identifier: MIT
#include "store/postgres/ServerChangesetApplying.h"

#include "store/ChangesetReader.h"
#include "store/StoreTexts.h"
#include "store/postgres/RowBatch.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/KnownTables.h"
#include "store/shared/WorkWatch.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Orvane {

namespace {

constexpr qsizetype LargestExchange = 1 << 20; // bytes
constexpr size_t RowsAtOnce = 200; // of those that are tried one by one

constexpr const char* DeferReferences = "SET CONSTRAINTS ALL DEFERRED";
constexpr const char* CheckReferences = "SET CONSTRAINTS ALL IMMEDIATE";
constexpr const char* Finished = "RELEASE orvane_apply";

enum class Applied {
    All,
    Conflict, // a row is not as expected
    Blocked, // a constraint forbids a change, perhaps only for now
};

bool HasColumnsOf(const KnownTable* known, const ChangedTable& table)
{
    return known && std::all_of(table.columns.begin(), table.columns.end(), [&](const std::string& column) {
               return known->Find(QString::fromStdString(column)) >= 0;
           });
}

// Raises DatabaseFailure for a table that is gone.
const KnownTable& TableNow(ServerConnection& connection, KnownTables& tables, const ChangedTable& table)
{
    const QString name = QString::fromStdString(table.name);
    if (!HasColumnsOf(tables.Find(name), table))
        tables.Forget();
    const KnownTable* known = tables.Find(name);
    if (!HasColumnsOf(known, table))
        throw connection.Errors().Failure(StoreTexts::UnknownTable, name);
    return *known;
}

// Changes rows alike with one statement. The order of rows is kept where it matters: insertions, deletions
// and updates never overtake each other.
class ManyAtOnce
{
public:
    ManyAtOnce(ServerConnection& connection, KnownTables& tables) : m_connection(connection), m_tables(tables)
    {
    }

    Applied Apply(const Changeset& changes)
    {
        ChangesetReader reader(changes);
        while (reader.Next()) {
            const ChangedRow& row = reader.Row();
            const bool overtakes = !m_batches.empty() && row.kind != m_kind;
            if ((overtakes || m_size > LargestExchange) && !Close(reader.Done()))
                return Applied::Conflict;
            m_kind = row.kind;
            Add(reader.Table(), row);
        }
        const bool isDone = Close(1) && Exchange({CheckReferences, Finished});
        return isDone ? Applied::All : Applied::Conflict;
    }

private:
    void Add(const ChangedTable& table, const ChangedRow& row)
    {
        auto batch = std::find_if(
            m_batches.rbegin(), m_batches.rend(), [&](const RowBatch& known) { return known.Fits(row); });
        if (batch == m_batches.rend()) {
            m_batches.emplace_back(table, TableNow(m_connection, m_tables, table), row);
            batch = m_batches.rbegin();
        }
        const qsizetype before = batch->Size();
        batch->Add(row);
        m_size += batch->Size() - before;
    }

    // No further rows join the present batches. Small ones wait, to be sent together with others.
    bool Close(double done)
    {
        std::move(m_batches.begin(), m_batches.end(), std::back_inserter(m_closed));
        m_batches.clear();
        m_connection.Watch().SetShare(done);
        return m_size <= LargestExchange || Exchange({});
    }

    bool Exchange(const std::vector<const char*>& last)
    {
        ServerPipeline pipeline(m_connection);
        for (const char* statement : std::exchange(m_first, {}))
            pipeline.Add(statement);
        for (RowBatch& batch : m_closed)
            batch.SendInto(pipeline);
        for (const char* statement : last)
            pipeline.Add(statement);
        pipeline.Finish();
        const bool isDone = std::all_of(
            m_closed.begin(), m_closed.end(), [&](const RowBatch& batch) { return batch.IsDone(pipeline); });
        m_closed.clear();
        m_size = 0;
        return isDone;
    }

    ServerConnection& m_connection;
    KnownTables& m_tables;
    std::vector<RowBatch> m_batches;
    std::vector<RowBatch> m_closed;
    std::vector<const char*> m_first{"SAVEPOINT orvane_apply", DeferReferences};
    qsizetype m_size = 0; // of all batches
    ChangeKind m_kind = ChangeKind::Updated;
};

// Changes row by row, and tries those that others block again, as long as each round changes at least one.
class OneByOne
{
public:
    OneByOne(ServerConnection& connection, KnownTables& tables, const Changeset& changes)
        : m_connection(connection), m_reader(changes)
    {
        while (m_reader.Next()) {
            const ChangedTable& table = m_reader.Table();
            m_rows.emplace_back(table, TableNow(connection, tables, table), m_reader.Row())
                .Add(m_reader.Row());
        }
    }

    bool Apply()
    {
        while (!m_rows.empty()) {
            const size_t count = m_rows.size();
            if (!Round() || m_blocked.size() == count)
                return false;
            m_rows = std::move(m_blocked);
            m_blocked.clear();
        }
        return true;
    }

private:
    bool Round()
    {
        for (size_t next = 0; next < m_rows.size();) {
            const size_t end = std::min(next + RowsAtOnce, m_rows.size());
            const size_t blocked = Change(next, end);
            if (blocked < end)
                m_blocked.push_back(std::move(m_rows[blocked]));
            if (m_hasConflict)
                return false;
            next = std::min(blocked + 1, end);
        }
        return true;
    }

    // Returns the first row that cannot be changed now; end if there is none.
    size_t Change(size_t next, size_t end)
    {
        ServerPipeline pipeline(m_connection);
        std::vector<size_t> releases;
        releases.reserve(end - next);
        for (size_t row = next; row < end; ++row) {
            pipeline.Add("SAVEPOINT orvane_row");
            m_rows[row].SendInto(pipeline);
            releases.push_back(pipeline.Add("RELEASE orvane_row"));
        }
        const size_t blocked = next + Finish(pipeline, releases);
        for (size_t row = next; row < blocked; ++row)
            m_hasConflict = m_hasConflict || !m_rows[row].IsDone(pipeline);
        return blocked;
    }

    // Returns how many rows were changed.
    size_t Finish(ServerPipeline& pipeline, const std::vector<size_t>& releases)
    {
        try {
            pipeline.Finish();
            return releases.size();
        } catch (const ServerError& error) {
            if (!error.IsConstraint())
                throw;
        }
        m_connection.Run("ROLLBACK TO orvane_row");
        return size_t(std::count_if(releases.begin(), releases.end(), [&](size_t release) {
            return release < pipeline.Succeeded();
        }));
    }

    ServerConnection& m_connection;
    ChangesetReader m_reader;
    std::vector<RowBatch> m_rows;
    std::vector<RowBatch> m_blocked;
    bool m_hasConflict = false;
};

Applied ApplyTogether(ServerConnection& connection, KnownTables& tables, const Changeset& changes)
{
    try {
        return ManyAtOnce(connection, tables).Apply(changes);
    } catch (const ServerError& error) {
        if (!error.IsConstraint())
            throw;
        return error.State() == "23503" ? Applied::Conflict : Applied::Blocked; // a missing row stays missing
    }
}

bool ApplyOneByOne(ServerConnection& connection, KnownTables& tables, const Changeset& changes)
{
    try {
        if (!OneByOne(connection, tables, changes).Apply())
            return false;
        connection.Run(CheckReferences);
        connection.Run(Finished);
        return true;
    } catch (const ServerError& error) {
        if (!error.IsConstraint())
            throw;
        return false;
    }
}

} // namespace

bool ApplyChangeset(ServerConnection& connection, KnownTables& tables, const Changeset& changes)
{
    if (changes.IsEmpty())
        return true;
    const Applied applied = ApplyTogether(connection, tables, changes);
    if (applied != Applied::Blocked)
        return applied == Applied::All;
    connection.Run("ROLLBACK TO orvane_apply");
    connection.Run(DeferReferences);
    return ApplyOneByOne(connection, tables, changes);
}

} // namespace Orvane
