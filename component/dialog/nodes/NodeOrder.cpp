// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeOrder.h"

#include <algorithm>
#include <iterator>

namespace Orvane {

namespace {

int CountInversions(const std::vector<LayerEntry>& layers, Qt::CaseSensitivity sensitivity)
{
    int inversions = 0;
    for (size_t row = 1; row < layers.size(); ++row)
        inversions += layers[row - 1].text.compare(layers[row].text, sensitivity) > 0 ? 1 : 0;
    return inversions;
}

Qt::CaseSensitivity SensitivityOf(const std::vector<LayerEntry>& layers)
{
    const int withCase = CountInversions(layers, Qt::CaseSensitive);
    if (withCase == 0)
        return Qt::CaseSensitive;
    return CountInversions(layers, Qt::CaseInsensitive) < withCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

using Rows = std::vector<LayerEntry>::const_iterator;

bool IsAfter(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) > 0;
}

bool IsInOrder(Rows first, Rows last)
{
    return std::is_sorted(first, last, [](const LayerEntry& one, const LayerEntry& other) {
        return IsAfter(other.text, one.text);
    });
}

Rows PlaceAmong(Rows first, Rows last, const QString& name)
{
    return std::upper_bound(first, last, name, [](const QString& wanted, const LayerEntry& layer) {
        return IsAfter(layer.text, wanted);
    });
}

} // namespace

int SortedRow(const std::vector<LayerEntry>& layers, const QString& text)
{
    const Qt::CaseSensitivity sensitivity = SensitivityOf(layers);
    const auto place = std::upper_bound(
        layers.begin(), layers.end(), text, [&](const QString& wanted, const LayerEntry& layer) {
            return wanted.compare(layer.text, sensitivity) < 0;
        });
    return int(place - layers.begin());
}

std::optional<int> PlaceByName(const std::vector<LayerEntry>& layers, int from, const QString& name)
{
    const Rows row = layers.begin() + from;
    const Rows next = std::next(row);
    const bool isFirst = row == layers.begin();
    const bool isLast = next == layers.end();
    const bool isAfterPrevious = isFirst || !IsAfter(std::prev(row)->text, name);
    if (isAfterPrevious && (isLast || !IsAfter(name, next->text)))
        return from;
    const bool isGapInOrder = isFirst || isLast || !IsAfter(std::prev(row)->text, next->text);
    if (!isGapInOrder || !IsInOrder(layers.begin(), row) || !IsInOrder(next, layers.end()))
        return std::nullopt;
    if (!isAfterPrevious)
        return int(PlaceAmong(layers.begin(), row, name) - layers.begin());
    return int(PlaceAmong(next, layers.end(), name) - layers.begin()) - 1;
}

} // namespace Orvane
