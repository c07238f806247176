// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>

namespace Orvane {

class LayerSchemes;

/// Which layers differ from the current scheme, kept up to date at the price of the layers that change: all
/// layers are compared at the first question and after Forget only.
class SchemeDifferences
{
public:
    /// schemes: not owned; outlives this object.
    explicit SchemeDifferences(LayerSchemes& schemes) : m_schemes(schemes) { }

    /// How many layers have other values than the current scheme, or none in it. Raises errors of the
    /// database.
    qsizetype Count();

    /// These layers may have changed, or be new, or be gone. Touches no database.
    void Note(const QSet<qint32>& layerIDs);
    /// The scheme is another, or nothing is known of the layers any more.
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
