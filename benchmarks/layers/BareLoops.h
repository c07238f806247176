// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/layers/BareSql.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane::Benchmarks {

/// The cost of the jobs with SQLite's C API alone: statements are prepared beforehand, values are read and
/// dropped. One object is one connection with the statements of one job.
class BareLoops
{
public:
    explicit BareLoops(const QString& mapPath);

    /// All columns of all layers, by name.
    void ReadFlatList();
    /// All columns of all layers and their groups, in the order of the tree.
    void ReadGroupedTree();
    /// All properties of each layer of the group, layer by layer in one transaction.
    void ReadMembers(qint32 groupID);
    /// Stores the seventeen columns of each layer of the group, layer by layer in one transaction.
    void WriteMembers(qint32 groupID, bool visible);

    /// The sum of all values read, so that the compiler cannot remove a read.
    qint64 Checksum() const { return m_checksum; }

private:
    using Statement = BareSql::Statement;

    void ReadAll(sqlite3_stmt* statement);
    void ReadRow(sqlite3_stmt* statement);
    std::vector<int> MembersOf(qint32 groupID) const;

    BareSql m_sql;
    Statement m_flatList;
    Statement m_groupedTree;
    Statement m_members;
    Statement m_layer;
    Statement m_update;
    qint64 m_checksum = 0;
};

} // namespace Orvane::Benchmarks
