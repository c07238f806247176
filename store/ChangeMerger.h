// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"
#include "store/SpooledBytes.h"

#include <string>
#include <vector>

namespace Orvane {

class ChangesetMaker;

/// Merges several changes to the same row of a log into one. Of each change it holds only a few bytes in
/// memory, and reads the rows again where they are.
class ChangeMerger
{
public:
    /// Neither is owned; both outlive this object and stay as they are.
    ChangeMerger(const SpooledBytes& log, const std::vector<ChangedTable>& tables)
        : m_log(log), m_tables(tables)
    {
    }

    /// The changes from there on, in the order of the first change of each row. Raises as TemporaryFile and
    /// KeptBytes do.
    Changeset ChangesSince(quint64 start);

private:
    // Where a change is. Changes of one row have the same hash; others almost never do.
    struct Change {
        quint64 place;
        size_t hash;
    };
    using Changes = std::vector<Change>;

    Changes Read(quint64 start);
    Changeset AsTheyAre(quint64 start);
    Changeset Merged(Changes& changes);
    static bool IsAlone(Changes::const_iterator change, Changes::const_iterator end);
    void AddRow(ChangesetMaker& maker, Changes::const_iterator first, Changes::const_iterator end);

    const SpooledBytes& m_log;
    const std::vector<ChangedTable>& m_tables;
    std::string m_buffer; // of the row that was read last
};

} // namespace Orvane
