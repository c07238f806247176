// SPDX-License-Identifier: MIT
#include "shell/servers/RightsDialog.h"

#include "mapkit/common/Guard.h"
#include "messages/NameInText.h"
#include "store/StorePlace.h"
#include "ui_RightsDialog.h"

#include <QPushButton>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr int RoleRole = Qt::UserRole; // the role as the server calls it
constexpr int FewestRoleLetters = 30; // times the width of an "x"

QString RightText(MapRight right)
{
    return right == MapRight::Edit ? RightsDialog::tr("Edit") : RightsDialog::tr("Read");
}

QString RoleText(const QString& role)
{
    return role == QLatin1String("public") ? RightsDialog::tr("Everybody") : NameInText(role);
}

} // namespace

RightsDialog::RightsDialog(const QString& place, ServerPasswords& passwords, QWidget* parent)
    : QDialog(parent), m_place(place), m_ui(std::make_unique<Ui::RightsDialog>()), m_work(passwords)
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Rights on \"%1\"").arg(NameInText(StorePlace::NameOf(place))));
    for (const MapRight right : {MapRight::Read, MapRight::Edit})
        m_ui->cmbRight->addItem(RightText(right), int(right));
    Connect();
    Read();
    m_ui->cmbRole->setFocus();
}

RightsDialog::~RightsDialog() = default;

void RightsDialog::accept()
{
    if (m_work.IsRunning())
        return;
    Guard(this, [this] {
        m_failure.clear();
        m_work.Start(
            ServerMaps::ServerOf(m_place),
            [this, place = m_place,
             holders = m_holders](const ServerMaps::Access& access) -> ServerWork::Result {
                ServerMaps::SetHolders(place, holders, access);
                return [this] { QDialog::accept(); };
            });
        m_isChanging = true;
    });
}

void RightsDialog::reject()
{
    bool mayEnd = true;
    Guard(this, [&] { mayEnd = !m_isChanging || m_work.MayBeLeft(*this); });
    if (mayEnd)
        QDialog::reject();
}

void RightsDialog::Connect()
{
    const auto run = [this](auto* sender, auto signal, void (RightsDialog::*act)()) {
        connect(sender, signal, this, [this, act] { Guard(this, [&] { (this->*act)(); }); });
    };
    run(m_ui->cmdGive, &QPushButton::clicked, &RightsDialog::Give);
    run(m_ui->cmdTakeBack, &QPushButton::clicked, &RightsDialog::TakeBack);
    run(m_ui->lstHolders, &QTreeWidget::itemSelectionChanged, &RightsDialog::ShowState);
    run(m_ui->cmbRole, &QComboBox::currentTextChanged, &RightsDialog::ShowState);
    run(&m_work, &ServerWork::RunningChanged, &RightsDialog::ShowState);
    connect(&m_work, &ServerWork::Failed, this, [this](const QString& reason) {
        m_failure = reason;
        m_isChanging = false;
        ShowState();
    });
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &RightsDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &RightsDialog::reject);
}

void RightsDialog::Read()
{
    const QString server = ServerMaps::ServerOf(m_place);
    m_work.Start(
        server, [this, server, place = m_place](const ServerMaps::Access& access) -> ServerWork::Result {
            const QStringList roles = ServerMaps::Roles(server, access);
            return [this, roles, holders = ServerMaps::Holders(place, access)] { ShowRoles(roles, holders); };
        });
}

void RightsDialog::ShowRoles(const QStringList& roles, std::vector<MapHolder> holders)
{
    m_isRead = true;
    m_holders = std::move(holders);
    m_ui->cmbRole->clear();
    m_ui->cmbRole->addItem(RoleText(QStringLiteral("public")), QStringLiteral("public"));
    for (const QString& role : roles)
        m_ui->cmbRole->addItem(RoleText(role), role);
    ShowHolders();
}

void RightsDialog::ShowHolders()
{
    m_ui->lstHolders->clear();
    for (const MapHolder& holder : m_holders) {
        auto* item = new QTreeWidgetItem(m_ui->lstHolders, {RoleText(holder.role), RightText(holder.right)});
        item->setData(0, RoleRole, holder.role);
    }
    m_ui->lstHolders->resizeColumnToContents(0);
    const int fewest = FewestRoleLetters * fontMetrics().horizontalAdvance(QLatin1Char('x'));
    m_ui->lstHolders->setColumnWidth(0, qMax(m_ui->lstHolders->columnWidth(0), fewest));
    ShowState();
}

void RightsDialog::ShowState()
{
    const bool isReady = m_isRead && !m_work.IsRunning();
    m_ui->cmdGive->setEnabled(isReady && m_ui->cmbRole->currentIndex() >= 0);
    m_ui->cmdTakeBack->setEnabled(isReady && !m_ui->lstHolders->selectedItems().isEmpty());
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(isReady);
    m_ui->lblState->setText(m_work.IsRunning() ? tr("Asking the server...") : m_failure);
}

// A role has one right.
void RightsDialog::Give()
{
    const QString role = m_ui->cmbRole->currentData().toString();
    const auto right = MapRight(m_ui->cmbRight->currentData().toInt());
    const auto found = std::find_if(
        m_holders.begin(), m_holders.end(), [&](const MapHolder& holder) { return holder.role == role; });
    if (found == m_holders.end())
        m_holders.push_back({role, right});
    else
        found->right = right;
    ShowHolders();
}

void RightsDialog::TakeBack()
{
    const QList<QTreeWidgetItem*> chosen = m_ui->lstHolders->selectedItems();
    const auto isChosen = [&](const MapHolder& holder) {
        return std::any_of(chosen.begin(), chosen.end(), [&](const QTreeWidgetItem* item) {
            return item->data(0, RoleRole).toString() == holder.role;
        });
    };
    m_holders.erase(std::remove_if(m_holders.begin(), m_holders.end(), isChosen), m_holders.end());
    ShowHolders();
}

} // namespace Orvane
