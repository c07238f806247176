// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <tuple>
#include <vector>

namespace Orvane {

/// A layer as a program keeps it in a list of its own. Each field stands for a column of Layers, and begins
/// with that column's default in LayerColumns.
///
///     std::vector<ListedLayer> layers{{.id = 1, .name = "Roads", .lineColour = 0x0000FF}};
struct ListedLayer {
    qint32 id = 0; ///< chosen by the program, not 0; different for each layer
    QString name = {}; ///< as the lists show it
    qint32 code = 0; ///< a layer with -2 or less is never listed
    bool visible = true; ///< drawn on the map
    bool selectable = true; ///< can be selected
    bool locked = false; ///< its features are not to be moved
    bool hitable = true; ///< its features are found under the pointer
    bool snapRequired = false; ///< measured lines snap to its features
    bool enquirable = true; ///< answers enquiries
    qint32 lineColour = 0; ///< BGR (red in the low byte), 0 to 0xFFFFFF
    bool usedForSymbols = true; ///< whether symbols have the line colour; kept in the top byte of Color
    qint32 fillForeColour = 0; ///< BGR, or TransparentColour
    qint32 fillBackColour = 0xFFFFFF; ///< BGR, or TransparentColour
    qint32 outlineStyle = 0; ///< the number of a line pattern, 0 for solid
    qint32 fillStyle = 0; ///< 0 to LastFillStyle
    qint32 lineThickness = 0; ///< in pixels below 0, in millimetres above
    double minVisScale = 0; ///< a denominator; 0 for no limit
    double maxVisScale = 0; ///< a denominator; 0 for no limit
    qint32 priority = 0; ///< 1 is drawn on top, 255 at the bottom
    qint32 rendererStyle = 0; ///< 0 for "Standard"
    qint32 overrideMode = 0; ///< 0 normal, 1 backdrop, 2 hidden
    bool systemLayer = false; ///< not to be deleted, renamed or recoded
    bool pseudo = false; ///< for filters of the flat list

    /// All fields, in order.
    auto AsTuple() const
    {
        return std::tie(
            id, name, code, visible, selectable, locked, hitable, snapRequired, enquirable, lineColour,
            usedForSymbols, fillForeColour, fillBackColour, outlineStyle, fillStyle, lineThickness,
            minVisScale, maxVisScale, priority, rendererStyle, overrideMode, systemLayer, pseudo);
    }
    /// True if all fields are equal.
    bool operator==(const ListedLayer& other) const { return AsTuple() == other.AsTuple(); }
    bool operator!=(const ListedLayer& other) const { return !(*this == other); }
};

/// A group as a program keeps it in a list of its own.
struct ListedGroup {
    qint32 id = 0; ///< chosen by the program, not 0; different for each group
    QString name = {}; ///< as the lists show it
    std::vector<qint32> layers = {}; ///< the IDs of its layers, in the order of the tree, each once
    bool pseudo = false; ///< such a group is not in the tree
    bool expanded = false; ///< of a new group; after that it is as the user leaves it

    /// All fields, in order.
    auto AsTuple() const { return std::tie(id, name, layers, pseudo, expanded); }
    bool operator==(const ListedGroup& other) const { return AsTuple() == other.AsTuple(); }
    bool operator!=(const ListedGroup& other) const { return !(*this == other); }
};

} // namespace Orvane
