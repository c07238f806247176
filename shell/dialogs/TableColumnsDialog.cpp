// SPDX-License-Identifier: MIT
#include "shell/dialogs/TableColumnsDialog.h"

#include "mapkit/common/Guard.h"
#include "messages/NameInText.h"
#include "ui_TableColumnsDialog.h"

#include <QFileInfo>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>

namespace Orvane {

namespace {

// The list's texts for a table: "shops.csv", or "shops.xlsx: sheet1" if the file has several.
QString NameOfTable(const TableChoice& table)
{
    const QFileInfo file(table.path);
    const QString name = NameInText(file.fileName());
    const bool isAlone = table.table.layer == file.completeBaseName();
    return isAlone ? name : QStringLiteral("%1: %2").arg(name, NameInText(table.table.layer));
}

void Fill(QComboBox& list, const QStringList& columns, const QString& chosen)
{
    list.clear();
    for (const QString& column : columns)
        list.addItem(NameInText(column), column);
    list.setCurrentIndex(list.findData(chosen));
}

bool IsGeometry(const CoordinateColumns& columns)
{
    return !columns.wkt.isEmpty();
}

void MakeBold(QTableWidgetItem& item, bool bold)
{
    QFont font = item.font();
    font.setBold(bold);
    item.setFont(font);
}

} // namespace

TableColumnsDialog::TableColumnsDialog(std::vector<TableChoice> tables, Purpose purpose, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::TableColumnsDialog>()), m_purpose(purpose),
      m_tables(std::move(tables))
{
    m_ui->setupUi(this);
    m_ui->optNone->setVisible(purpose == Purpose::Adding);
    m_ui->lstTables->setVisible(m_tables.size() > 1);
    m_ui->lblTable->setVisible(m_tables.size() == 1);
    FillTables();
    Connect();
    m_ui->lstTables->setCurrentRow(0);
    ShowTable();
}

TableColumnsDialog::~TableColumnsDialog() = default;

bool TableColumnsDialog::Ask(std::vector<TableChoice>& tables, Purpose purpose, QWidget* parent)
{
    TableColumnsDialog dialog(tables, purpose, parent);
    const bool isAccepted = dialog.exec() == Accepted;
    if (isAccepted)
        tables = dialog.Tables();
    return isAccepted;
}

void TableColumnsDialog::Connect()
{
    const auto guarded = [this](void (TableColumnsDialog::*act)()) {
        return [this, act] { Guard(this, [&] { (this->*act)(); }); };
    };
    connect(m_ui->lstTables, &QListWidget::currentRowChanged, this, guarded(&TableColumnsDialog::ShowTable));
    for (const QRadioButton* option : {m_ui->optNumbers, m_ui->optGeometry, m_ui->optNone})
        connect(option, &QRadioButton::toggled, this, guarded(&TableColumnsDialog::TakeChoice));
    for (const QComboBox* list : {m_ui->cmbX, m_ui->cmbY, m_ui->cmbGeometry})
        connect(list, &QComboBox::currentIndexChanged, this, guarded(&TableColumnsDialog::TakeChoice));
}

const TableChoice* TableColumnsDialog::Current() const
{
    const int row = m_ui->lstTables->currentRow();
    return row >= 0 && size_t(row) < m_tables.size() ? &m_tables[size_t(row)] : nullptr;
}

void TableColumnsDialog::FillTables()
{
    for (const TableChoice& table : m_tables) {
        m_ui->lstTables->addItem(NameOfTable(table));
        m_ui->lstTables->item(m_ui->lstTables->count() - 1)->setToolTip(table.path);
    }
    for (int i = 0; i < m_ui->lstTables->count(); ++i) {
        m_ui->lstTables->setCurrentRow(i);
        NameTable();
    }
}

// A table that is left out says so in the list.
void TableColumnsDialog::NameTable()
{
    const TableChoice* table = Current();
    if (!table)
        return;
    const QString name = NameOfTable(*table);
    m_ui->lblTable->setText(name);
    m_ui->lstTables->currentItem()->setText(table->columns.IsEmpty() ? tr("%1 (left out)").arg(name) : name);
}

void TableColumnsDialog::ShowTable()
{
    if (!Current())
        return;
    {
        const QScopedValueRollback<bool> showing(m_isShowing, true);
        ShowRows();
        ShowChoice();
    }
    NameTable();
    MarkColumns();
    UpdateEnabled();
}

void TableColumnsDialog::ShowRows()
{
    const TableRows& rows = Current()->table;
    m_ui->tblRows->clear();
    m_ui->tblRows->setColumnCount(int(rows.columns.size()));
    m_ui->tblRows->setRowCount(int(rows.rows.size()));
    for (int column = 0; column < int(rows.columns.size()); ++column) {
        m_ui->tblRows->setHorizontalHeaderItem(
            column, new QTableWidgetItem(NameInText(rows.columns[column])));
        for (int row = 0; row < int(rows.rows.size()); ++row) {
            const QString text = NameInText(rows.rows[size_t(row)][column]);
            m_ui->tblRows->setItem(row, column, new QTableWidgetItem(text));
        }
    }
}

void TableColumnsDialog::ShowChoice()
{
    const TableChoice& table = *Current();
    Fill(*m_ui->cmbX, table.table.columns, table.columns.x);
    Fill(*m_ui->cmbY, table.table.columns, table.columns.y);
    Fill(*m_ui->cmbGeometry, table.table.columns, table.columns.wkt);
    const bool isLeftOut = table.columns.IsEmpty();
    m_ui->optNumbers->setChecked(!isLeftOut && !IsGeometry(table.columns));
    m_ui->optGeometry->setChecked(IsGeometry(table.columns));
    m_ui->optNone->setChecked(isLeftOut);
}

void TableColumnsDialog::TakeChoice()
{
    if (m_isShowing || !Current())
        return;
    m_tables[size_t(m_ui->lstTables->currentRow())].columns = Chosen();
    NameTable();
    MarkColumns();
    UpdateEnabled();
}

CoordinateColumns TableColumnsDialog::Chosen() const
{
    if (m_ui->optNumbers->isChecked())
        return {m_ui->cmbX->currentData().toString(), m_ui->cmbY->currentData().toString(), {}};
    if (m_ui->optGeometry->isChecked())
        return {{}, {}, m_ui->cmbGeometry->currentData().toString()};
    return {};
}

void TableColumnsDialog::MarkColumns()
{
    const TableChoice& table = *Current();
    const QStringList chosen = {table.columns.x, table.columns.y, table.columns.wkt};
    for (int column = 0; column < m_ui->tblRows->columnCount(); ++column) {
        const bool isChosen = chosen.contains(table.table.columns[column]);
        MakeBold(*m_ui->tblRows->horizontalHeaderItem(column), isChosen);
        for (int row = 0; row < m_ui->tblRows->rowCount(); ++row)
            MakeBold(*m_ui->tblRows->item(row, column), isChosen);
    }
    m_ui->tblRows->resizeColumnsToContents();
}

// What the user should know about the choice; empty if it is fine.
QString TableColumnsDialog::Problem() const
{
    const TableChoice* table = Current();
    if (!table || m_ui->optNone->isChecked())
        return {};
    const CoordinateColumns& columns = table->columns;
    if (columns.IsEmpty())
        return tr("Choose the columns, please.");
    if (!IsGeometry(columns) && columns.x == columns.y)
        return tr("X and Y are the same column.");
    return !IsGeometry(columns) && !HoldNumbers(table->table, columns)
        ? tr("Some of the rows below have no numbers there. They are left out.")
        : QString();
}

void TableColumnsDialog::UpdateEnabled()
{
    m_ui->cmbX->setEnabled(m_ui->optNumbers->isChecked());
    m_ui->cmbY->setEnabled(m_ui->optNumbers->isChecked());
    m_ui->cmbGeometry->setEnabled(m_ui->optGeometry->isChecked());
    m_ui->lblProblem->setText(Problem());
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(AreUsable());
}

bool TableColumnsDialog::AreUsable() const
{
    return std::all_of(m_tables.begin(), m_tables.end(), [this](const TableChoice& table) {
        const CoordinateColumns& columns = table.columns;
        return columns.IsEmpty() ? m_purpose == Purpose::Adding
                                 : IsGeometry(columns) || columns.x != columns.y;
    });
}

} // namespace Orvane
