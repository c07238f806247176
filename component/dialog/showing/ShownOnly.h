// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <QString>
#include <QtGlobal>

#include <unordered_set>
#include <vector>

namespace Orvane {

/// What "Show Only These" has changed: the own quick modes of layers that it has hidden, and of hidden layers
/// that it has shown. A layer is still as it was changed if it is hidden although its own mode is another
/// one, or in the mode Normal although it is hidden by itself. What else became of it meanwhile is the user's
/// will.
///
/// Nothing here raises.
class ShownOnly
{
public:
    using LayerIDs = std::unordered_set<qint32>;

    /// Nothing was changed.
    ShownOnly() = default;
    /// The reverse of Text. What cannot be read in a text is left out.
    static ShownOnly FromText(const QString& text);
    /// As text, such as "normal=1..5,7;hidden=9"; empty if nothing was changed.
    QString Text() const;

    bool IsEmpty() const { return m_ranges.empty(); }

    /// Modes to store, and what is to be kept then.
    struct Change;
    /// Shows these layers and no others. A layer that was changed before keeps the own mode that it had
    /// first. Changes nothing if none of these layers exists. all: the layers as they are now.
    Change Show(const std::vector<LayerMode>& all, const LayerIDs& shown) const;
    /// The modes that bring back the layers that are still as they were changed.
    std::vector<LayerMode> Back(const std::vector<LayerMode>& all) const;
    /// The same without these layers: their modes are now their own.
    ShownOnly Without(const std::vector<LayerMode>& all, const LayerIDs& layerIDs) const;

private:
    /// Layers with successive IDs and the same own mode.
    struct Range {
        qint32 first;
        qint32 last;
        qint16 ownMode;
    };

    const Range* RangeOf(qint32 layerID) const;
    bool IsChanged(const LayerMode& now) const;
    qint16 OwnMode(const LayerMode& now) const;
    void Read(const QString& part);
    void Sort();
    static ShownOnly Of(std::vector<LayerMode> ownModes);

    std::vector<Range> m_ranges; // sorted, apart from each other
};

struct ShownOnly::Change {
    std::vector<LayerMode> modes;
    ShownOnly kept;
};

} // namespace Orvane
