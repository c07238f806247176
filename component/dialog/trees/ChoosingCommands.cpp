// SPDX-License-Identifier: MIT
#include "component/dialog/trees/ChoosingCommands.h"

#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeIndexes.h"
#include "component/dialog/trees/NodeSelection.h"
#include "component/dialog/trees/QuietView.h"

#include <QTreeView>

#include <unordered_set>

namespace Orvane {

namespace {

using NodeIndexes::NodeAt;
using NodeIndexes::RowsWhere;

// The current node itself, if it is under no group.
QModelIndex TopOfCurrent(const QTreeView& view)
{
    const QModelIndex current = view.currentIndex();
    return current.parent().isValid() ? current.parent() : current;
}

// A group would stand for layers that were not found, too.
bool StandForTheirLayers(const QAbstractItemModel& groups)
{
    const auto* model = qobject_cast<const LayerTreeModel*>(&groups);
    return !model || model->Words().IsEmpty();
}

QModelIndex FirstOf(const QItemSelection& ranges)
{
    return ranges.front().topLeft();
}

QItemSelection TopRows(const QAbstractItemModel& model)
{
    return {model.index(0, 0), model.index(model.rowCount() - 1, 0)};
}

QItemSelection LayersUnder(const QAbstractItemModel& model, const QModelIndex& group)
{
    return {model.index(0, 0, group), model.index(model.rowCount(group) - 1, 0, group)};
}

QItemSelection FoundLayers(const QAbstractItemModel& model)
{
    QItemSelection found;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex group = model.index(row, 0);
        if (model.rowCount(group) > 0)
            found.append(LayersUnder(model, group));
    }
    return found.isEmpty() ? TopRows(model) : found;
}

/// The layers that a view does not show as selected.
class FreeLayers
{
public:
    explicit FreeLayers(const QTreeView& view) : m_model(*view.model())
    {
        const NodeSelection selected = NodeSelection::Of(view);
        for (const NodeReference& node : selected.Nodes()) {
            if (node.isGroup)
                AddLayersOf(view, node);
            else
                m_taken.insert(node.layerID);
        }
    }

    QItemSelection Ranges() const
    {
        QItemSelection ranges = RowsWhere(m_model, {}, [this](const QModelIndex& node) {
            return NodeAt(node).isGroup ? IsWhollyFree(node) : IsFree(node);
        });
        for (int row = 0; row < m_model.rowCount(); ++row) {
            const QModelIndex group = m_model.index(row, 0);
            if (!IsWhollyFree(group))
                ranges.append(FreeUnder(group));
        }
        return ranges;
    }

private:
    // Those that a find hides, too.
    void AddLayersOf(const QTreeView& view, const NodeReference& groupNode)
    {
        if (const auto* nodes = qobject_cast<const LayerTreeModel*>(&m_model)) {
            const std::vector<qint32> layerIDs = nodes->LayerIDsOf(groupNode.groupID);
            m_taken.insert(layerIDs.begin(), layerIDs.end());
            return;
        }
        const QModelIndex group = NodeIndexes::IndexOf(view, groupNode);
        for (int row = 0; row < m_model.rowCount(group); ++row)
            m_taken.insert(NodeAt(m_model.index(row, 0, group)).layerID);
    }

    bool IsFree(const QModelIndex& layer) const { return m_taken.count(NodeAt(layer).layerID) == 0; }

    QItemSelection FreeUnder(const QModelIndex& group) const
    {
        return RowsWhere(m_model, group, [this](const QModelIndex& layer) { return IsFree(layer); });
    }

    bool IsWhollyFree(const QModelIndex& group) const
    {
        if (!m_takesGroups)
            return false;
        const QItemSelection free = FreeUnder(group);
        return free.size() == 1 && free.front().height() == m_model.rowCount(group);
    }

    const QAbstractItemModel& m_model;
    const bool m_takesGroups = StandForTheirLayers(m_model);
    std::unordered_set<qint32> m_taken;
};

} // namespace

void ChoosingCommands::Select(QTreeView& view, const QItemSelection& ranges, const QModelIndex& current)
{
    const QuietView quiet(view, ranges);
    view.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    view.selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
}

// Groups stand for their layers. Selecting these too would give a range for each expanded group, and the next
// click would take quadratic time.
void ChoosingCommands::SelectAll(QTreeView& view)
{
    const QAbstractItemModel& model = *view.model();
    if (model.rowCount() == 0)
        return;
    const QItemSelection all = StandForTheirLayers(model) ? TopRows(model) : FoundLayers(model);
    const QModelIndex current = view.currentIndex();
    const QModelIndex top = TopOfCurrent(view);
    const QModelIndex kept = all.contains(current) ? current : top;
    Select(view, all, all.contains(kept) ? kept : FirstOf(all));
}

void ChoosingCommands::SelectAllInGroup(QTreeView& view)
{
    const QModelIndex group = TopOfCurrent(view);
    if (!group.isValid() || view.model()->rowCount(group) == 0)
        return;
    view.expand(group);
    const QItemSelection layers = LayersUnder(*view.model(), group);
    const bool isLayer = view.currentIndex().parent().isValid();
    Select(view, layers, isLayer ? view.currentIndex() : FirstOf(layers));
}

void ChoosingCommands::InvertSelection(QTreeView& view)
{
    const QItemSelection inverted = FreeLayers(view).Ranges();
    if (!inverted.isEmpty())
        Select(view, inverted, FirstOf(inverted));
}

} // namespace Orvane
