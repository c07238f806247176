// SPDX-License-Identifier: MIT
#include "shell/servers/ServerMapDialog.h"

#include "mapkit/common/Guard.h"
#include "messages/NameInText.h"
#include "shell/servers/ServerChoice.h"
#include "shell/servers/ServerMapModel.h"
#include "shell/window/Confirm.h"
#include "ui_ServerMapDialog.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSortFilterProxyModel>

#include <utility>

namespace Orvane {

namespace {

constexpr int MostLetters = 18; // of a column that is not the name; times the width of an "x"

} // namespace

ServerMapDialog::ServerMapDialog(
    Purpose purpose, const QString& name, ServerPasswords& passwords, QWidget* parent)
    : QDialog(parent), m_purpose(purpose), m_ui(std::make_unique<Ui::ServerMapDialog>()),
      m_model(new ServerMapModel(this)), m_rows(new QSortFilterProxyModel(this)), m_work(passwords)
{
    m_ui->setupUi(this);
    m_rows->setSourceModel(m_model);
    m_rows->setSortRole(ServerMapModel::SortRole);
    m_rows->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_ui->lstMaps->setModel(m_rows);
    m_ui->lstMaps->sortByColumn(ServerMapModel::Name, Qt::AscendingOrder);
    m_ui->lstMaps->header()->setStretchLastSection(false);
    m_ui->lstMaps->header()->setSectionResizeMode(ServerMapModel::Name, QHeaderView::Stretch);
    FitColumns();
    m_servers = new ServerChoice({*m_ui->cmbServer, *m_ui->cmdAdd, *m_ui->cmdForget}, *this);
    m_servers->setParent(this);
    ShowPurpose(name);
    Connect();
    List();
}

ServerMapDialog::~ServerMapDialog() = default;

QString ServerMapDialog::AskToOpen(ServerPasswords& passwords, QWidget* parent)
{
    ServerMapDialog dialog(Purpose::Open, {}, passwords, parent);
    return dialog.exec() == QDialog::Accepted ? dialog.Place() : QString();
}

PlaceToSave ServerMapDialog::AskToSave(const QString& name, ServerPasswords& passwords, QWidget* parent)
{
    ServerMapDialog dialog(Purpose::Save, name, passwords, parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {dialog.Place(), dialog.WhatIfExists()};
}

QString ServerMapDialog::Place() const
{
    if (m_servers->Server().isEmpty() || Name().isEmpty())
        return {};
    return ServerMaps::PlaceOf(m_servers->Server(), Name());
}

void ServerMapDialog::accept()
{
    if (m_work.IsRunning()) // perhaps the chosen map is being removed
        return;
    bool mayEnd = false;
    Guard(this, [&] { mayEnd = !Place().isEmpty() && (m_purpose == Purpose::Open || MayStore()); });
    if (mayEnd)
        QDialog::accept();
}

void ServerMapDialog::reject()
{
    bool mayEnd = true;
    Guard(this, [&] { mayEnd = !m_isChanging || m_work.MayBeLeft(*this); });
    if (mayEnd)
        QDialog::reject();
}

void ServerMapDialog::ShowPurpose(const QString& name)
{
    const bool isForSaving = m_purpose == Purpose::Save;
    setWindowTitle(isForSaving ? tr("Save Map on Server") : tr("Open Map from Server"));
    m_ui->lblName->setVisible(isForSaving);
    m_ui->edtName->setVisible(isForSaving);
    m_ui->edtName->setText(name);
    m_ui->buttons->button(QDialogButtonBox::Ok)->setText(isForSaving ? tr("&Save") : tr("&Open"));
    if (m_servers->Server().isEmpty())
        m_ui->cmdAdd->setFocus();
    else
        (isForSaving ? static_cast<QWidget*>(m_ui->edtName) : m_ui->lstMaps)->setFocus();
}

void ServerMapDialog::Connect()
{
    const auto run = [this](auto* sender, auto signal, void (ServerMapDialog::*act)()) {
        connect(sender, signal, this, [this, act] { Guard(this, [&] { (this->*act)(); }); });
    };
    run(m_servers, &ServerChoice::Chosen, &ServerMapDialog::List);
    run(m_ui->cmdRefresh, &QPushButton::clicked, &ServerMapDialog::List);
    run(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, &ServerMapDialog::List);
    run(m_ui->cmdRemove, &QPushButton::clicked, &ServerMapDialog::RemoveMap);
    run(m_ui->lstMaps->selectionModel(), &QItemSelectionModel::currentChanged, &ServerMapDialog::TakeRow);
    run(m_ui->edtName, &QLineEdit::textChanged, &ServerMapDialog::ShowState);
    run(&m_work, &ServerWork::RunningChanged, &ServerMapDialog::ShowState);
    connect(&m_work, &ServerWork::Failed, this, [this](const QString& reason) {
        m_failure = reason;
        m_isChanging = false;
        ShowState();
    });
    connect(m_ui->lstMaps, &QTreeView::doubleClicked, this, &ServerMapDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &ServerMapDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &ServerMapDialog::reject);
}

void ServerMapDialog::List()
{
    m_work.Stop();
    m_failure.clear();
    m_isListed = false;
    m_isChanging = false;
    m_model->SetMaps({});
    const QString server = m_servers->Server();
    if (!server.isEmpty()) {
        m_work.Start(server, [this, server](const ServerMaps::Access& access) -> ServerWork::Result {
            return [this, maps = ServerMaps::List(server, access)] { ShowMaps(maps); };
        });
    }
    ShowState();
}

void ServerMapDialog::ShowMaps(std::vector<ListedMap> maps)
{
    m_model->SetMaps(std::move(maps));
    m_isListed = true;
    if (m_purpose == Purpose::Open && m_rows->rowCount() > 0)
        m_ui->lstMaps->setCurrentIndex(m_rows->index(0, 0));
    FitColumns();
    ShowState();
}

// The name has the room that the others leave. A header is never cut.
void ServerMapDialog::FitColumns()
{
    QTreeView& list = *m_ui->lstMaps;
    const int most = MostLetters * fontMetrics().horizontalAdvance(QLatin1Char('x'));
    for (int column = ServerMapModel::Name + 1; column < ServerMapModel::ColumnCount; ++column) {
        list.resizeColumnToContents(column);
        const int allowed = qMax(most, list.header()->sectionSizeHint(column));
        list.setColumnWidth(column, qMin(list.columnWidth(column), allowed));
    }
}

void ServerMapDialog::ShowState()
{
    const int row = Row();
    m_ui->lblState->setText(StateText());
    m_ui->cmdRefresh->setEnabled(!m_servers->Server().isEmpty() && !m_work.IsRunning());
    m_ui->cmdRemove->setEnabled(row >= 0 && m_model->At(row).isOwn && !m_work.IsRunning());
    const bool isChosen = m_purpose == Purpose::Open ? row >= 0 : m_isListed && !Name().isEmpty();
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(isChosen && !m_work.IsRunning());
}

QString ServerMapDialog::StateText() const
{
    if (m_servers->Server().isEmpty())
        return tr("Add the server of your team. Your administrator knows its name.");
    if (m_work.IsRunning())
        return tr("Asking the server...");
    if (!m_failure.isEmpty())
        return m_failure;
    return m_isListed && m_model->rowCount() == 0
        ? tr("There are no maps on this server yet that you may open.")
        : QString();
}

void ServerMapDialog::RemoveMap()
{
    const int row = Row();
    if (row < 0)
        return;
    const QString question
        = tr("Remove the map \"%1\" from the server? All its layers, groups and schemes are lost, for "
             "everybody. This cannot be undone.")
              .arg(NameInQuestion(m_model->At(row).name));
    if (!Confirm(*this, tr("Remove Map"), question))
        return;
    const QString place = ServerMaps::PlaceOf(m_servers->Server(), m_model->At(row).name);
    m_work.Start(m_servers->Server(), [this, place](const ServerMaps::Access& access) -> ServerWork::Result {
        ServerMaps::Remove(place, access);
        return [this] { List(); };
    });
    m_isChanging = true;
}

void ServerMapDialog::TakeRow()
{
    const int row = Row();
    if (m_purpose == Purpose::Save && row >= 0)
        m_ui->edtName->setText(m_model->At(row).name);
    ShowState();
}

// A map of that name is replaced only by its owner, and while nobody has it open.
bool ServerMapDialog::MayStore()
{
    m_ifExists = IfExists::Refuse;
    const int row = m_model->RowOf(Name());
    if (row < 0)
        return true;
    const ListedMap& map = m_model->At(row);
    const QString name = NameInQuestion(map.name);
    if (map.isOwn && map.users.isEmpty())
        return MayReplace(name);
    const QString why = map.isOwn
        ? tr("The map \"%1\" is open by %2 and cannot be replaced now.")
              .arg(name, NameInText(map.users.join(QLatin1String(", "))))
        : tr("The map \"%1\" belongs to %2. Choose another name.").arg(name, NameInText(map.owner));
    QMessageBox box(QMessageBox::Information, windowTitle(), why, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return false;
}

bool ServerMapDialog::MayReplace(const QString& name)
{
    const bool isConfirmed = Confirm(
        *this, windowTitle(),
        tr("There is a map \"%1\" on the server already. Replace it, for everybody?").arg(name));
    if (isConfirmed)
        m_ifExists = IfExists::Replace;
    return isConfirmed;
}

// Of the model; -1 if no map is chosen.
int ServerMapDialog::Row() const
{
    const QModelIndex index = m_ui->lstMaps->currentIndex();
    return index.isValid() ? m_rows->mapToSource(index).row() : -1;
}

QString ServerMapDialog::Name() const
{
    if (m_purpose == Purpose::Save)
        return m_ui->edtName->text().trimmed();
    const int row = Row();
    return row < 0 ? QString() : m_model->At(row).name;
}

} // namespace Orvane
