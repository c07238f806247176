// SPDX-License-Identifier: MIT
#pragma once

#include "shell/table/AttributeModel.h"

#include <QItemSelection>
#include <QObject>

#include <optional>
#include <set>

class QTableView;

namespace Orvane {

class FeatureSelection;

/// Joins the rows that are selected in a table with the features that are selected on the map, and keeps
/// selection, current row and scroll position when the rows of the model change.
///
/// The table decides for its own layer only: what is selected in other layers stays. A layer whose features
/// cannot be selected on the map has a selection in its table alone.
class TableSelection : public QObject
{
    Q_OBJECT
public:
    /// view: shows the model already. None is owned; all outlive this object.
    TableSelection(QTableView& view, const AttributeModel& model, FeatureSelection& features, qint32 layerID);

    /// The features of the layer that are selected, whether their rows are shown or not.
    const std::set<qint64>& IDs() const { return m_ids; }
    /// The same from the top to the bottom of the table, without those that are not shown.
    std::vector<qint64> IDsInOrder() const;
    /// Whether the user may select features of the layer on the map; true at first.
    void SetReachesMap(bool reaches);
    /// Makes another row the current and only selected one: step rows further down, after the last one from
    /// the top again. Does nothing without rows.
    void Step(int step);

signals:
    /// Other features are selected. onMap: this was not done in the table.
    void Changed(bool onMap);

private:
    // Where the user was.
    struct Place {
        std::optional<qint64> currentID;
        int column = 0;
        bool isInSight = false;
        int scroll = 0;
    };

    std::set<qint64> OnMap() const;
    void TakeFromMap();
    void TakeFromView();
    void SelectRows();
    void SelectInserted(int first, int last);
    QItemSelection SelectionOf(const std::vector<int>& rows) const;
    void NotePlace();
    void ReturnToPlace();

    QTableView& m_view;
    const AttributeModel& m_model;
    FeatureSelection& m_features;
    const qint32 m_layerID;
    std::set<qint64> m_ids;
    Place m_place;
    bool m_reachesMap = true;
    bool m_isOwnChange = false; // of the view's selection or the map's
};

} // namespace Orvane
