// SPDX-License-Identifier: MIT
#include "qgis/project/LayerOrder.h"

#include <qgslayertree.h>
#include <qgsmaplayer.h>
#include <qgsproject.h>

#include <algorithm>
#include <vector>

namespace Orvane {

namespace {

const QString PriorityKey = QStringLiteral("orvane/Priority");
const QString OrderedKey = QStringLiteral("orvane/ordered"); // of the tree: its own order was left by us

std::vector<qint32> KeptPriorities(const QList<QgsMapLayer*>& layers)
{
    std::vector<qint32> kept;
    kept.reserve(size_t(layers.size()));
    for (const QgsMapLayer* layer : layers)
        kept.push_back(layer->customProperty(PriorityKey, LayerOrder::DefaultPriority).toInt());
    return kept;
}

// The positions of the longest run of numbers that never fall.
std::vector<size_t> LongestRun(const std::vector<qint32>& numbers)
{
    constexpr size_t None = ~size_t(0);
    std::vector<size_t> ends; // at index n the last position of the best run of n + 1 numbers
    std::vector<size_t> before(numbers.size(), None);
    for (size_t at = 0; at < numbers.size(); ++at) {
        const auto place
            = std::upper_bound(ends.begin(), ends.end(), numbers[at], [&](qint32 number, size_t end) {
                  return number < numbers[end];
              });
        before[at] = place == ends.begin() ? None : *(place - 1);
        if (place == ends.end())
            ends.push_back(at);
        else
            *place = at;
    }
    std::vector<size_t> run(ends.size());
    size_t at = ends.empty() ? None : ends.back();
    for (auto place = run.rbegin(); place != run.rend(); ++place, at = before[at])
        *place = at;
    return run;
}

void MakeRise(std::vector<qint32>& numbers)
{
    const std::vector<size_t> run = LongestRun(numbers);
    if (run.empty())
        return;
    qint32 last = numbers[run.front()];
    auto next = run.begin();
    for (size_t at = 0; at < numbers.size(); ++at) {
        if (next != run.end() && *next == at)
            last = numbers[*next++];
        numbers[at] = last;
    }
}

QList<QgsMapLayer*> OrderOfTree(const QgsProject& project)
{
    QList<QgsMapLayer*> layers;
    for (const QgsLayerTreeLayer* node : project.layerTreeRoot()->findLayers()) {
        if (node->layer() && node->layer()->isSpatial())
            layers << node->layer();
    }
    return layers;
}

void SetOrder(QgsProject& project, const QList<QgsMapLayer*>& order)
{
    QgsLayerTree* tree = project.layerTreeRoot();
    const bool isOurs = !tree->hasCustomLayerOrder() || tree->customProperty(OrderedKey).toBool();
    if (isOurs && order == OrderOfTree(project)) {
        tree->setHasCustomLayerOrder(false);
        return;
    }
    if (isOurs)
        tree->setCustomProperty(OrderedKey, true);
    tree->setCustomLayerOrder(order);
    tree->setHasCustomLayerOrder(true);
}

} // namespace

QHash<QString, qint32> LayerOrder::Read(const QgsProject& project)
{
    const QList<QgsMapLayer*> order = project.layerTreeRoot()->layerOrder();
    std::vector<qint32> numbers = KeptPriorities(order);
    MakeRise(numbers);
    QHash<QString, qint32> priorities;
    priorities.reserve(order.size());
    for (int at = 0; at < order.size(); ++at)
        priorities.insert(order.at(at)->id(), numbers[size_t(at)]);
    return priorities;
}

Value LayerOrder::PriorityIn(const QHash<QString, qint32>& priorities, const QgsMapLayer& layer)
{
    const auto found = priorities.constFind(layer.id());
    return found == priorities.constEnd() ? Value::Null() : Value(*found);
}

void LayerOrder::Write(QgsProject& project, const QHash<QString, qint32>& priorities)
{
    QHash<QString, qint32> wanted = Read(project);
    for (auto given = priorities.begin(); given != priorities.end(); ++given)
        wanted.insert(given.key(), given.value());
    QList<QgsMapLayer*> order = project.layerTreeRoot()->layerOrder();
    const QList<QgsMapLayer*> before = order;
    const auto number = [&](const QgsMapLayer* layer) { return wanted.value(layer->id()); };
    std::stable_sort(order.begin(), order.end(), [&](const QgsMapLayer* one, const QgsMapLayer* other) {
        return number(one) < number(other);
    });
    for (QgsMapLayer* layer : order) {
        if (layer->customProperty(PriorityKey, DefaultPriority).toInt() != number(layer))
            layer->setCustomProperty(PriorityKey, number(layer));
    }
    if (order != before)
        SetOrder(project, order);
}

} // namespace Orvane
