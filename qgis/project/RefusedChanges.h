// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QString>

#include <set>
#include <string_view>
#include <vector>

namespace Orvane {

/// Columns of a layer that could not be set.
struct RefusedColumns {
    QString layer; ///< its name
    std::vector<std::string_view> columns; ///< as LayerColumns names them
};

/// Gathers what an operation could not set. A property that a layer cannot have, such as the fill colour of a
/// raster, counts only if no other layer of the operation has taken it.
class RefusedChanges
{
public:
    /// refused: what WriteLayer has refused. known: the row before, Null where a layer has no such property.
    /// stored: the row that was wanted.
    void
    Add(const QString& layer, const std::vector<std::string_view>& refused, const LayerValues& known,
        const LayerValues& stored);

    /// The layers with at least one column, in the order of Add.
    std::vector<RefusedColumns> All() const;

private:
    struct Entry {
        RefusedColumns refused;
        std::vector<std::string_view> unknown;
    };

    std::vector<Entry> m_entries;
    std::set<std::string_view> m_taken;
};

} // namespace Orvane
