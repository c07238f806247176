// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QHash>

#include <optional>

namespace Orvane {

/// Remembers, for undo, what a named style was like before an edit made it current and changed it as well.
/// The latest such edit of each layer is remembered.
class StyleEdits
{
public:
    /// An edit begins. former: the layer's row before it. style: its row with the style that is now current.
    void Begin(qint32 layerID, const LayerValues& former, const LayerValues& style);
    /// The edit is done. row: the layer's row then.
    void End(qint32 layerID, const LayerValues& row);
    /// The row with the style as it was, if going from one row to the other takes back the edit.
    std::optional<LayerValues> Before(qint32 layerID, const LayerValues& from, const LayerValues& to) const;
    void Forget() { m_edits.clear(); }

private:
    struct Edit {
        LayerValues former;
        LayerValues style;
        std::optional<LayerValues> edited;
    };

    QHash<qint32, Edit> m_edits;
};

} // namespace Orvane
