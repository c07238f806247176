// SPDX-License-Identifier: MIT
#include "shell/table/TableSelection.h"

#include "mapkit/common/Guard.h"
#include "shell/features/FeatureSelection.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <limits>

namespace Orvane {

TableSelection::TableSelection(
    QTableView& view, const AttributeModel& model, FeatureSelection& features, qint32 layerID)
    : m_view(view), m_model(model), m_features(features), m_layerID(layerID), m_ids(OnMap())
{
    const auto guarded = [this](void (TableSelection::*act)()) {
        return [this, act] { Guard(&m_view, [this, act] { (this->*act)(); }); };
    };
    connect(
        view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
        guarded(&TableSelection::TakeFromView));
    connect(&features, &FeatureSelection::Changed, this, guarded(&TableSelection::TakeFromMap));
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, guarded(&TableSelection::NotePlace));
    connect(&model, &QAbstractItemModel::modelReset, this, guarded(&TableSelection::ReturnToPlace));
    connect(&model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
        Guard(&m_view, [&] { SelectInserted(first, last); });
    });
}

std::set<qint64> TableSelection::OnMap() const
{
    std::set<qint64> ids;
    const FeatureKeys& keys = m_features.Keys();
    const auto first = keys.lower_bound({m_layerID, std::numeric_limits<qint64>::min()});
    for (auto key = first; key != keys.end() && key->layerID == m_layerID; ++key)
        ids.insert(ids.end(), key->featureID);
    return ids;
}

std::vector<qint64> TableSelection::IDsInOrder() const
{
    std::vector<qint64> ids;
    ids.reserve(m_ids.size());
    for (const int row : m_model.RowsOf(m_ids))
        ids.push_back(m_model.IDs()[size_t(row)]);
    return ids;
}

void TableSelection::SetReachesMap(bool reaches)
{
    m_reachesMap = reaches;
}

void TableSelection::Step(int step)
{
    const int count = m_model.rowCount();
    if (count == 0)
        return;
    const QModelIndex current = m_view.currentIndex();
    const int from = current.isValid() ? current.row() : step > 0 ? -1 : count;
    const int row = (from + step + count) % count;
    const QModelIndex next = m_model.index(row, qMax(0, current.column()));
    m_view.selectionModel()->setCurrentIndex(
        next, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_view.scrollTo(next);
}

void TableSelection::TakeFromMap()
{
    if (m_isOwnChange || !m_reachesMap)
        return;
    std::set<qint64> ids = OnMap();
    if (ids == m_ids)
        return;
    m_ids = std::move(ids);
    SelectRows();
    const std::vector<int> rows = m_model.RowsOf(m_ids);
    if (!rows.empty())
        m_view.scrollTo(m_model.index(rows.front(), qMax(0, m_view.currentIndex().column())));
    emit Changed(true);
}

void TableSelection::TakeFromView()
{
    if (m_isOwnChange)
        return;
    std::set<qint64> ids;
    for (const QItemSelectionRange& range : m_view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            ids.insert(m_model.IDs()[size_t(row)]);
    }
    m_ids = std::move(ids);
    if (m_reachesMap) {
        const QScopedValueRollback<bool> own(m_isOwnChange, true);
        FeatureKeys keys = m_features.Keys();
        std::erase_if(keys, [this](const FeatureKey& key) { return key.layerID == m_layerID; });
        for (const qint64 id : m_ids)
            keys.insert({m_layerID, id});
        m_features.Set(std::move(keys));
    }
    emit Changed(false);
}

// Cleared first: an old and a new selection of many ranges are compared each with each.
void TableSelection::SelectRows()
{
    const QScopedValueRollback<bool> own(m_isOwnChange, true);
    QItemSelectionModel& selected = *m_view.selectionModel();
    selected.select(QItemSelection(), QItemSelectionModel::Clear);
    selected.select(SelectionOf(m_model.RowsOf(m_ids)), QItemSelectionModel::Select);
}

void TableSelection::SelectInserted(int first, int last)
{
    std::vector<int> rows;
    for (int row = first; row <= last && !m_ids.empty(); ++row) {
        if (m_ids.contains(m_model.IDs()[size_t(row)]))
            rows.push_back(row);
    }
    if (rows.empty())
        return;
    const QScopedValueRollback<bool> own(m_isOwnChange, true);
    m_view.selectionModel()->select(SelectionOf(rows), QItemSelectionModel::Select);
}

// rows: ascending. Neighbours are one range.
QItemSelection TableSelection::SelectionOf(const std::vector<int>& rows) const
{
    QItemSelection selection;
    const int lastColumn = m_model.columnCount() - 1;
    for (size_t begin = 0, end = 0; begin < rows.size() && lastColumn >= 0; begin = end) {
        for (end = begin + 1; end < rows.size() && rows[end] == rows[end - 1] + 1;)
            ++end;
        selection.append(
            QItemSelectionRange(m_model.index(rows[begin], 0), m_model.index(rows[end - 1], lastColumn)));
    }
    return selection;
}

void TableSelection::NotePlace()
{
    const QModelIndex current = m_view.currentIndex();
    m_place = {};
    m_place.scroll = m_view.verticalScrollBar()->value();
    if (!current.isValid())
        return;
    m_place.currentID = m_model.IDs()[size_t(current.row())];
    m_place.column = current.column();
    m_place.isInSight = m_view.viewport()->rect().intersects(m_view.visualRect(current));
}

void TableSelection::ReturnToPlace()
{
    SelectRows();
    QAbstractItemView& view = m_view;
    view.doItemsLayout(); // so that the scroll bar knows the rows
    m_view.verticalScrollBar()->setValue(m_place.scroll);
    if (!m_place.currentID)
        return;
    const std::vector<int> row = m_model.RowsOf({*m_place.currentID});
    if (row.empty() || m_place.column >= m_model.columnCount())
        return;
    const QModelIndex current = m_model.index(row.front(), m_place.column);
    m_view.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (m_place.isInSight)
        m_view.scrollTo(current);
}

} // namespace Orvane
