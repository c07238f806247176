// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangedRow.h"
#include "store/postgres/link/ArrayText.h"

#include <QByteArray>

#include <cstddef>
#include <vector>

namespace Orvane {

class ServerPipeline;
struct KnownTable;

/// Recorded changes that one statement applies: rows of one table that all were inserted, deleted or updated
/// in the same columns. Each row must be as its change expects it.
class RowBatch
{
public:
    /// A batch for rows like this one, but without it. table: as recorded. known: the same table
    /// now; it must have all those columns.
    RowBatch(const ChangedTable& table, const KnownTable& known, const ChangedRow& row);

    /// True if the row may be added.
    bool Fits(const ChangedRow& row) const;
    void Add(const ChangedRow& row);
    /// The length of what will be sent, in bytes.
    qsizetype Size() const;

    /// Adds the statement, and a second one for rows to delete, which may be missing already.
    void SendInto(ServerPipeline& pipeline);
    /// After the pipeline has finished: false if a row was not as expected.
    bool IsDone(const ServerPipeline& pipeline) const;

private:
    // One parameter: the values of one column of all rows.
    struct Values {
        QByteArray name; // in the statement
        QByteArray column;
        QByteArray type;
        ArrayText array = {};
    };

    void Describe(const char* letter, const ChangedTable& table, const KnownTable& known, int position);
    QByteArray Source(size_t count) const;
    QByteArray KeyCondition() const;
    QByteArray Condition() const;
    QByteArray Assignments() const;
    QByteArray Statement() const;
    QByteArray Inserting() const;

    QByteArray m_table;
    size_t m_tablePosition;
    ChangeKind m_kind;
    std::vector<int> m_positions; // of the changed columns
    size_t m_keyCount = 0;
    std::vector<Values> m_values; // the key, then the values before, then those after
    size_t m_rowCount = 0;
    size_t m_statement = 0; // in the pipeline
};

} // namespace Orvane
