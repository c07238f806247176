// SPDX-License-Identifier: MIT
#pragma once

#include "shell/table/AttributeModel.h"
#include "shell/table/TableSelection.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <set>

namespace Ui {
class AttributeTable;
}

namespace Orvane {

class FeatureSelection;

/// The layer whose attributes a table shows.
struct TableLayer {
    QString name;
    LayerSource source;
    bool isSelectable = true; ///< on the map
};

/// A window with the attributes of all features of a layer: sorted by a click on a column, searched, and
/// with the selection of the map. It reads only what is in sight, in the background.
class AttributeTable : public QWidget
{
    Q_OBJECT
public:
    /// selection: not owned; outlives this object. The window is deleted when it is closed.
    AttributeTable(const TableLayer& layer, FeatureSelection& selection, QWidget* parent);
    ~AttributeTable() override;

    /// Takes another name of the layer, and whether it is selectable. Another source is read.
    void Follow(const TableLayer& layer);
    /// Reads the source again, which has changed; the table keeps its place.
    void ReadAgain();
    /// Shows a message instead of the rows.
    void ShowMessage(const QString& text);

signals:
    /// The map shall show these features of the layer.
    void ZoomWanted(const std::set<qint64>& featureIDs);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Sorting {
        int column = -1; ///< -1: the source's order
        Qt::SortOrder direction = Qt::AscendingOrder;
        bool operator==(const Sorting&) const = default;
    };

    void SetUpView();
    void SetUpFailure();
    void ConnectActions();
    void ConnectFind();
    void ConnectReader();
    void TakeColumns();
    void TakeIDs();
    void SortBy(int column);
    void Sort();
    void ShowSorting();
    void FindNow();
    void ShowFound(const std::vector<qint64>& ids);
    void TakeFailure(TableReader::Task task, const QString& reason);
    void OnSelectionChanged(bool onMap);
    void ShowOnlySelected();
    void CopyRows();
    void CopyValue();
    void Cancel();
    void ShowCount();
    void BeginBusy();
    void ShowBusy();
    void FitColumns();

    std::unique_ptr<Ui::AttributeTable> m_ui;
    TableLayer m_layer;
    TableReader m_reader;
    AttributeModel m_model;
    std::unique_ptr<TableSelection> m_selection;
    Sorting m_wanted;
    Sorting m_shown; // that the rows have now
    bool m_fitsColumns = false; // as soon as there are rows
    QTimer m_findSoon; // after the last key
    QTimer m_busy; // while something is done that takes longer
};

} // namespace Orvane
