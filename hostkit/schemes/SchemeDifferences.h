// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>

namespace Orvane {

class LayerSchemes;

/// Which layers differ from the current scheme, kept up to date cheaply: only changed layers are compared
/// again. All layers are compared only on the first call and after Forget.
class SchemeDifferences
{
public:
    /// schemes: not owned; outlives this object.
    explicit SchemeDifferences(LayerSchemes& schemes) : m_schemes(schemes) { }

    /// How many layers have values that differ from the current scheme, or have none in it. Raises database
    /// errors.
    qsizetype Count();

    /// Notes that these layers may have been changed, created or removed. Does not access the database.
    void Note(const QSet<qint32>& layerIDs);
    /// Call it when another scheme has become current, or when it is not known which layers changed.
    void Forget() { m_known = false; }

private:
    void CompareAll();
    void CompareNoted();

    LayerSchemes& m_schemes;
    QSet<qint32> m_differing;
    QSet<qint32> m_noted;
    bool m_known = false;
};

} // namespace Orvane
