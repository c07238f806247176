// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace Orvane {
class ILayerDatabase;
}

/// A model of what the layer database should contain: plain numbers and the few rules of loading and
/// applying, written without any code of the component.
namespace Orvane::Testing::Paper {

/// The columns of a layer that the dialog may write; booleans count as 0 and 1.
enum Column {
    Visible,
    Selectable,
    Locked,
    Hitable,
    SnapRequired,
    Enquirable,
    Color,
    FillForeColor,
    FillBackColor,
    OutlineStyle,
    FillStyle,
    LineThickness,
    MinVisScale,
    MaxVisScale,
    Priority,
    Style,
    OverrideMode,
    Code,
    ColumnCount
};

inline constexpr std::array<const char*, ColumnCount> columnNames{
    "Visible",     "Selectable",    "locked",        "Hitable",      "SnapRequired", "Enquirable",
    "Color",       "FillForeColor", "FillBackColor", "OutlineStyle", "FillStyle",    "LineThickness",
    "MinVisScale", "MaxVisScale",   "Priority",      "Style",        "OverrideMode", "Code"};

struct Layer {
    QString name;
    bool isSystem = false;
    std::array<double, ColumnCount> columns{};

    bool operator==(const Layer&) const = default;
};

struct Group {
    QString name;
    qint32 ordering = 0;
    bool isExpanded = false;
    std::vector<qint32> members{}; ///< layer IDs in their order

    bool operator==(const Group&) const = default;
};

/// All rows by their IDs.
struct Map {
    std::map<qint32, Layer> layers;
    std::map<qint32, Group> groups;

    bool operator==(const Map&) const = default;
    /// Removes the layer from its groups too.
    void RemoveLayer(qint32 layerID);
    bool HasCode(double code) const;
};

/// Reads the real rows.
Map ReadMap(ILayerDatabase& database);

/// What differs, one line each; empty when the maps are equal.
QStringList Differences(const Map& expected, const Map& actual);

/// The properties on the panel, each in its own unit: flags 0 and 1, colours BGR, scales as indexes.
enum Property {
    IsVisible,
    IsSelectable,
    IsLocked,
    IsHitable,
    IsSnapRequired,
    IsEnquirable,
    UsesForSymbols,
    LineColour,
    FillForeColour,
    FillBackColour,
    LineStyle,
    Thickness,
    Fill,
    MinScale,
    MaxScale,
    DrawPriority,
    RendererStyle,
    PropertyCount
};

/// Nothing for "various".
using Values = std::array<std::optional<double>, PropertyCount>;

/// The properties that the layers have in common; none without layers.
Values CommonValues(const std::vector<const Layer*>& layers);

/// What the panel's controls can show of the values: "dont care" reads as 0, a patterned line has no width, a
/// line is known completely or not at all, and a renderer style that is not listed counts as none.
Values AsShown(const Values& record);

/// Writes what the panel shows into the layer.
void Write(Layer& layer, const Values& shown);

/// The transparent colour.
inline constexpr double transparent = double(qint32(0xFF000000u));

/// The numbers of the host's renderer styles.
inline constexpr std::array<double, 3> rendererStyles{0, 7, 9};

} // namespace Orvane::Testing::Paper
