// SPDX-License-Identifier: MIT
#include "qgis/project/RefusedChanges.h"

#include <OrvaneShellLib/LayerValues.h>

#include <algorithm>

namespace Orvane {

namespace {

// The flag "for symbols" alone brings a colour along.
bool IsColourOfFlag(std::string_view column, const Value& wanted)
{
    return column == "Color" && wanted.IsNumber() && ToInt32(wanted) == TransparentColour;
}

} // namespace

void RefusedChanges::Add(
    const QString& layer, const std::vector<std::string_view>& refused, const LayerValues& known,
    const LayerValues& stored)
{
    Entry entry{{layer, refused}, {}};
    for (const LayerColumn& column : LayerColumns) {
        const Value& wanted = ValueOf(stored, column.name);
        const bool isRefused = std::find(refused.begin(), refused.end(), column.name) != refused.end();
        if (isRefused || wanted.IsNull() || !Differs(known, stored, column.name))
            continue;
        if (!ValueOf(known, column.name).IsNull())
            m_taken.insert(column.name);
        else if (!IsColourOfFlag(column.name, wanted))
            entry.unknown.emplace_back(column.name);
    }
    m_entries.push_back(std::move(entry));
}

std::vector<RefusedColumns> RefusedChanges::All() const
{
    std::vector<RefusedColumns> all;
    all.reserve(m_entries.size());
    for (const Entry& entry : m_entries) {
        RefusedColumns one = entry.refused;
        std::copy_if(
            entry.unknown.begin(), entry.unknown.end(), std::back_inserter(one.columns),
            [this](std::string_view column) { return m_taken.count(column) == 0; });
        if (!one.columns.empty())
            all.push_back(std::move(one));
    }
    return all;
}

} // namespace Orvane
