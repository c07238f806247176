// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeOrder.h"

#include <algorithm>

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

} // namespace Orvane
