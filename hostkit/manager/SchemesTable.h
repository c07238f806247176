// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/manager/SchemesModel.h"

#include <QStringList>
#include <QTableView>

#include <optional>

class QActionGroup;

namespace Orvane {

/// The table of all schemes. Rows are chosen, dragged to another place, and sorted by a click on a column's
/// header or in the context menu: up, down, and back to the user's own order.
class SchemesTable : public QTableView
{
    Q_OBJECT

public:
    /// model: not owned; outlives this table.
    explicit SchemesTable(SchemesModel& model, QWidget* parent = nullptr);

    /// In the order of the table.
    QStringList ChosenNames() const;
    /// Adds these to what is chosen; one alone is current too.
    void Choose(const QStringList& names);

    /// The widths of the columns, to be kept; anything that is not such a state changes nothing.
    QByteArray Columns() const;
    void RestoreColumns(const QByteArray& state);

    /// Adds the ways to sort to the context menu.
    void AddSorting();

    /// So wide that all columns are seen.
    QSize sizeHint() const override;

protected:
    /// Shift+F10 opens the context menu also where the system has no key for it.
    void keyPressEvent(QKeyEvent* event) override;

Q_SIGNALS:
    /// The rows stand in another order.
    void Sorted();

private:
    void SetWidths();
    void AddOrder(QMenu& menu, const QString& text, std::optional<SchemesModel::Column> column);
    void OpenMenu();
    void SortBy(std::optional<SchemesModel::Column> column);
    void SortBy(std::optional<SchemesModel::Column> column, Qt::SortOrder order);

    SchemesModel& m_model;
    QActionGroup* m_orders; // owned by the table
};

} // namespace Orvane
