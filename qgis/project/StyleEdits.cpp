// SPDX-License-Identifier: MIT
#include "qgis/project/StyleEdits.h"

#include "qgis/project/StoredRows.h"

namespace Orvane {

void StyleEdits::Begin(qint32 layerID, const LayerValues& former, const LayerValues& style)
{
    m_edits.insert(layerID, {former, style, std::nullopt});
}

void StyleEdits::End(qint32 layerID, const LayerValues& row)
{
    const auto edit = m_edits.find(layerID);
    if (edit != m_edits.end() && !edit->edited)
        edit->edited = row;
}

std::optional<LayerValues>
StyleEdits::Before(qint32 layerID, const LayerValues& from, const LayerValues& to) const
{
    const auto edit = m_edits.constFind(layerID);
    const bool isTakenBack = edit != m_edits.constEnd() && edit->edited
        && !StoredRows::AreDifferent(from, *edit->edited) && !StoredRows::AreDifferent(to, edit->former);
    return isTakenBack ? std::optional<LayerValues>(edit->style) : std::nullopt;
}

} // namespace Orvane
