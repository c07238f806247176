// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QHash>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

/// The rows of layers as a project has them. What has changed since the last Begin can be taken back; keeping
/// it costs as much as there are changed rows, however many there are in all. Nothing here raises.
class KnownRows
{
public:
    /// nullptr for a layer without a row; valid until that row is changed.
    const LayerValues* Find(qint32 layerID) const;
    /// Of all layers with a row, in no order.
    std::vector<qint32> LayerIDs() const;

    /// Adds the row, or replaces the one of that layer.
    void Set(qint32 layerID, const LayerValues& row);
    /// Nothing happens if the layer has no row.
    void Remove(qint32 layerID);
    /// Forgets all rows, which cannot be taken back.
    void Clear();

    /// From now on, changes can be taken back to what is now.
    void Begin() { m_former.clear(); }
    /// Makes the rows what they were at the last Begin.
    void TakeBack();

private:
    void NoteFormer(qint32 layerID);

    QHash<qint32, LayerValues> m_rows;
    QHash<qint32, std::optional<LayerValues>> m_former; // of those changed; nothing: there was no row
};

} // namespace Orvane
