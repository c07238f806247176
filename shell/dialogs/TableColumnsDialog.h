// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/tables/ColumnGuess.h"

#include <QDialog>

#include <memory>
#include <vector>

namespace Ui {
class TableColumnsDialog;
}

namespace Orvane {

/// Shows the first rows of tables, and which of their columns hold the coordinates. The user chooses others,
/// or leaves a table out. One window for all tables.
class TableColumnsDialog : public QDialog
{
    Q_OBJECT
public:
    /// Adding: tables may be left out. Changing: layers of the map have them already.
    enum class Purpose { Adding, Changing };

    TableColumnsDialog(std::vector<TableChoice> tables, Purpose purpose, QWidget* parent);
    ~TableColumnsDialog() override;

    /// The tables with the columns that are chosen.
    const std::vector<TableChoice>& Tables() const { return m_tables; }

    /// Asks; puts the answer into tables and returns true if it was not cancelled.
    static bool Ask(std::vector<TableChoice>& tables, Purpose purpose, QWidget* parent);

private:
    void Connect();
    void FillTables();
    void ShowTable();
    void ShowRows();
    void ShowChoice();
    void TakeChoice();
    void MarkColumns();
    void NameTable();
    void UpdateEnabled();
    CoordinateColumns Chosen() const;
    QString Problem() const;
    const TableChoice* Current() const;

    bool AreUsable() const;

    std::unique_ptr<Ui::TableColumnsDialog> m_ui;
    Purpose m_purpose;
    std::vector<TableChoice> m_tables;
    bool m_isShowing = false; // the controls are being filled
};

} // namespace Orvane
