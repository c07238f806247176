// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

/// Makes a changeset row by row, so that never more than a piece of it is in memory besides what KeptBytes
/// holds there.
class ChangesetMaker
{
public:
    explicit ChangesetMaker(const std::vector<ChangedTable>& tables) : m_tables(tables) { }

    /// row: coded as ChangedRows does; each row once. Raises as KeptBytes does.
    void Add(std::string_view row);
    void Add(const ChangedRow& row);
    /// Nothing is left to add to. Raises as KeptBytes does.
    Changeset Finish();

private:
    void Keep(std::string_view bytes);
    void KeepRows();

    const std::vector<ChangedTable>& m_tables;
    std::string m_rows; // that are not yet kept
    KeptBytes::Maker m_kept;
    bool m_hasRows = false;
};

} // namespace Orvane
