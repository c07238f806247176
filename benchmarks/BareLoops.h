// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace Orvane::Benchmarks {

/// The cost of the jobs with SQLite's C API alone: statements are prepared beforehand, values are read and
/// dropped. One object is one connection with the statements of one job.
class BareLoops
{
public:
    explicit BareLoops(const QString& mapPath);
    ~BareLoops();
    BareLoops(const BareLoops&) = delete;
    BareLoops& operator=(const BareLoops&) = delete;

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
    struct Closer {
        void operator()(sqlite3* handle) const;
    };
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

    Statement Prepared(const char* sql) const;
    void Execute(const char* sql) const;
    void ReadAll(sqlite3_stmt* statement);
    void ReadRow(sqlite3_stmt* statement);
    std::vector<int> MembersOf(qint32 groupID) const;

    std::unique_ptr<sqlite3, Closer> m_handle;
    Statement m_flatList;
    Statement m_groupedTree;
    Statement m_members;
    Statement m_layer;
    Statement m_update;
    qint64 m_checksum = 0;
};

} // namespace Orvane::Benchmarks
