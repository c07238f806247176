// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeDifferences.h"

#include "hostkit/schemes/LayerSchemes.h"

namespace Orvane {

namespace {

constexpr qsizetype FewLayers = 1000; // above this, comparing all layers at once is faster

} // namespace

qsizetype SchemeDifferences::Count()
{
    if (!m_known)
        CompareAll();
    CompareNoted();
    return m_differing.size();
}

void SchemeDifferences::Note(const QSet<qint32>& layerIDs)
{
    if (!m_known)
        return;
    m_noted.unite(layerIDs);
    if (m_noted.size() <= FewLayers)
        return;
    m_known = false; // all are compared with the next count
    m_noted.clear();
}

void SchemeDifferences::CompareAll()
{
    m_differing = m_schemes.LayersThatDiffer();
    m_noted.clear();
    m_known = true;
}

void SchemeDifferences::CompareNoted()
{
    if (m_noted.isEmpty())
        return;
    const QSet<qint32> differing = m_schemes.LayersThatDiffer(m_noted);
    m_differing.subtract(m_noted).unite(differing);
    m_noted.clear();
}

} // namespace Orvane
