// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class ILayerStore;

/// Copies layer schemes from one layer database into another; layers are matched by MatchLayers.
class SchemeTransfer
{
public:
    /// Neither is owned; both outlive this object.
    SchemeTransfer(ILayerStore& from, ILayerStore& to);

    /// Adds the layers that are missing in the target database, with all their properties.
    void AddMissingLayers();

    /// Copies each scheme with the values of the layers that the target database has. A scheme of the same
    /// name is replaced and the others stay; what is loaded at opening stays too, and the order is that of
    /// the source, if it has one; the current scheme stays current if there was one.
    void CopySchemes();

private:
    std::vector<qint32> MissingLayers();
    void CopyOrder();
    void CopyValues(const QHash<qint32, qint32>& schemes); // from the ID in the source to that in the target

    ILayerStore& m_from;
    ILayerStore& m_to;
    QHash<qint32, qint32> m_matches; // from the LayerID in the source to the LayerID in the target
};

} // namespace Orvane
