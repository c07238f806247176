// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangedRow.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Orvane {

/// Merges several changes to the same row into one. The bytes of the rows must outlive it.
class ChangeMerger
{
public:
    void Add(const ChangedRow& row);
    /// The coded rows, in the order of their first changes.
    std::string Rows() const;

private:
    struct Entry {
        ChangedRow row;
        bool isGone = false; // the row is as it was before all changes
    };

    static void Merge(Entry& entry, const ChangedRow& next);

    std::vector<Entry> m_entries;
    std::vector<std::unordered_map<std::string_view, size_t>> m_places; // by table, then key
};

} // namespace Orvane
