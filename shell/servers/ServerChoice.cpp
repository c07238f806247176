// SPDX-License-Identifier: MIT
#include "shell/servers/ServerChoice.h"

#include "mapkit/common/Guard.h"
#include "messages/NameInText.h"
#include "shell/servers/AddServerDialog.h"
#include "shell/servers/ServerSettings.h"
#include "store/opening/ServerMaps.h"

#include <QAbstractButton>
#include <QComboBox>

#include <algorithm>

namespace Orvane {

namespace {

bool IsOnlyOne(const QStringList& servers, const QString& server)
{
    const QString name = ServerMaps::NameOf(server);
    return std::count_if(
               servers.begin(), servers.end(),
               [&](const QString& other) { return ServerMaps::NameOf(other) == name; })
        == 1;
}

} // namespace

ServerChoice::ServerChoice(Widgets widgets, QWidget& owner) : m_widgets(widgets), m_owner(owner)
{
    Fill(ServerSettings::LastServer());
    const auto run = [this](auto* sender, auto signal, void (ServerChoice::*act)()) {
        connect(sender, signal, this, [this, act] { Guard(&m_owner, [&] { (this->*act)(); }); });
    };
    run(&m_widgets.list, &QComboBox::activated, &ServerChoice::Take);
    run(&m_widgets.add, &QAbstractButton::clicked, &ServerChoice::Add);
    run(&m_widgets.forget, &QAbstractButton::clicked, &ServerChoice::Forget);
}

QString ServerChoice::Server() const
{
    return m_widgets.list.currentData().toString();
}

void ServerChoice::Add()
{
    const QString server = AddServerDialog::Ask(&m_owner);
    if (server.isEmpty())
        return;
    ServerSettings::AddServer(server);
    Fill(server);
    Take();
}

// Where two have the same name, their places tell them apart.
void ServerChoice::Fill(const QString& chosen)
{
    QComboBox& list = m_widgets.list;
    list.clear();
    const QStringList servers = ServerSettings::Servers();
    for (const QString& server : servers) {
        list.addItem(NameInText(IsOnlyOne(servers, server) ? ServerMaps::NameOf(server) : server), server);
        list.setItemData(list.count() - 1, server.toHtmlEscaped(), Qt::ToolTipRole);
    }
    if (const int row = list.findData(chosen); row >= 0)
        list.setCurrentIndex(row);
    list.setEnabled(list.count() > 0);
    m_widgets.forget.setEnabled(list.count() > 0);
}

void ServerChoice::Forget()
{
    ServerSettings::RemoveServer(Server());
    Fill({});
    Take();
}

void ServerChoice::Take()
{
    ServerSettings::SetLastServer(Server());
    emit Chosen(Server());
}

} // namespace Orvane
