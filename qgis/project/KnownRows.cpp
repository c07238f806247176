// SPDX-License-Identifier: MIT
#include "qgis/project/KnownRows.h"

namespace Orvane {

const LayerValues* KnownRows::Find(qint32 layerID) const
{
    const auto row = m_rows.constFind(layerID);
    return row == m_rows.constEnd() ? nullptr : &*row;
}

std::vector<qint32> KnownRows::LayerIDs() const
{
    return {m_rows.keyBegin(), m_rows.keyEnd()};
}

void KnownRows::Set(qint32 layerID, const LayerValues& row)
{
    NoteFormer(layerID);
    m_rows.insert(layerID, row);
}

void KnownRows::Remove(qint32 layerID)
{
    NoteFormer(layerID);
    m_rows.remove(layerID);
}

void KnownRows::Clear()
{
    m_rows.clear();
    m_former.clear();
}

void KnownRows::TakeBack()
{
    for (auto former = m_former.cbegin(); former != m_former.cend(); ++former) {
        if (former->has_value())
            m_rows.insert(former.key(), **former);
        else
            m_rows.remove(former.key());
    }
    m_former.clear();
}

void KnownRows::NoteFormer(qint32 layerID)
{
    if (m_former.contains(layerID))
        return;
    const LayerValues* row = Find(layerID);
    m_former.insert(layerID, row ? std::optional(*row) : std::nullopt);
}

} // namespace Orvane
