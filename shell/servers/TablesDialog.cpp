// SPDX-License-Identifier: MIT
#include "shell/servers/TablesDialog.h"

#include "mapkit/common/Guard.h"
#include "messages/NameInText.h"
#include "ui_TablesDialog.h"

#include <QPushButton>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int TableRole = Qt::UserRole; // the table as the server calls it

bool HasAllWords(const QString& table, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return table.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace

TablesDialog::TablesDialog(const QStringList& tables, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::TablesDialog>())
{
    m_ui->setupUi(this);
    for (const QString& table : tables) {
        auto* item = new QListWidgetItem(NameInText(table), m_ui->lstTables);
        item->setData(TableRole, table);
        item->setToolTip(table.toHtmlEscaped());
    }
    m_ui->lblNone->setVisible(tables.isEmpty());
    connect(m_ui->edtSearch, &QLineEdit::textChanged, this, [this](const QString& text) {
        Guard(this, [&] { Search(text); });
    });
    connect(m_ui->lstTables, &QListWidget::itemSelectionChanged, this, &TablesDialog::ShowState);
    connect(m_ui->lstTables, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_ui->edtSearch->setFocus();
    ShowState();
}

TablesDialog::~TablesDialog() = default;

QStringList TablesDialog::Chosen() const
{
    QStringList chosen;
    for (int row = 0; row < m_ui->lstTables->count(); ++row) {
        const QListWidgetItem* item = m_ui->lstTables->item(row);
        if (item->isSelected())
            chosen << item->data(TableRole).toString();
    }
    return chosen;
}

QStringList TablesDialog::Ask(const QStringList& tables, QWidget* parent)
{
    TablesDialog dialog(tables, parent);
    return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : QStringList();
}

// What is no longer listed is no longer chosen.
void TablesDialog::Search(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int row = 0; row < m_ui->lstTables->count(); ++row) {
        QListWidgetItem* item = m_ui->lstTables->item(row);
        const bool isListed = HasAllWords(item->data(TableRole).toString(), words);
        item->setHidden(!isListed);
        if (!isListed)
            item->setSelected(false);
    }
    ShowState();
}

void TablesDialog::ShowState()
{
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(!m_ui->lstTables->selectedItems().isEmpty());
}

} // namespace Orvane
