// SPDX-License-Identifier: MIT
#include "shell/servers/ServerActions.h"

#include "mapkit/common/Guard.h"
#include "mapkit/data/ServerTables.h"
#include "shell/servers/RightsDialog.h"
#include "shell/servers/ServerAccess.h"
#include "shell/servers/ServerMapDialog.h"
#include "shell/servers/ServerSettings.h"
#include "shell/servers/TablesDialog.h"
#include "shell/window/RunWithProgress.h"
#include "store/StorePlace.h"
#include "store/opening/ServerMaps.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAction>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>

namespace Orvane {

namespace {

bool IsOnServer(const MapDocument* document)
{
    return document && !document->Path().isEmpty() && !StorePlace::IsFile(document->Path());
}

} // namespace

ServerActions::ServerActions(QMenu& menu, QAction* after, QMainWindow& window)
    : m_window(window), m_passwords(window), m_readOnly(window)
{
    if (!ServerMaps::AreSupported())
        return;
    const QList<QAction*> commands = menu.actions();
    QAction* before = commands.value(commands.indexOf(after) + 1);
    const QAction* open = Add(
        menu, before, "actOpenFromServer", tr("Open Map from Ser&ver..."),
        tr("Open a map that a team shares on a PostgreSQL server"));
    const QAction* save = Add(
        menu, before, "actSaveOnServer", tr("Save &Map on Server..."),
        tr("Store the map on a PostgreSQL server and continue with it there"));
    m_tables = Add(
        menu, before, "actAddTables", tr("Add Ta&bles from Server..."),
        tr("Add PostGIS tables of the map's server to the map"));
    m_rights = Add(
        menu, before, "actMapRights", tr("R&ights..."),
        tr("Choose who may read and edit the map on its server"));
    m_folder = Add(
        menu, before, "actDataFolder", tr("Folder of S&hared Data..."),
        tr("Choose where the files with the data of the map are on this computer"));
    connect(open, &QAction::triggered, this, &ServerActions::OpenWanted);
    connect(save, &QAction::triggered, this, &ServerActions::SaveWanted);
    connect(m_rights, &QAction::triggered, this, [this] { Guard(&m_window, [this] { AskForRights(); }); });
    connect(
        m_folder, &QAction::triggered, this, [this] { Guard(&m_window, [this] { AskForDataFolder(); }); });
    connect(m_tables, &QAction::triggered, this, &ServerActions::TablesWanted);
    ShowWhatIsPossible();
}

void ServerActions::Use(MapDocument& document)
{
    m_document = &document;
    m_readOnly.Show(document.IsReadOnly());
    if (ServerMaps::AreSupported())
        ShowWhatIsPossible();
}

// Another server may have a map of that name.
QString ServerActions::TitleOfMap() const
{
    const QString name
        = IsOnServer(m_document) ? StorePlace::TitleOf(m_document->Path()) : m_document->Name();
    return m_document->IsReadOnly() ? tr("%1 (read-only)").arg(name) : name;
}

QString ServerActions::Canonical(const QString& place)
{
    return ServerMaps::Canonical(place);
}

MapAccess ServerActions::AccessTo(const QString& place)
{
    if (StorePlace::IsFile(place) || !ServerMaps::AreSupported())
        return {};
    const QString server = ServerMaps::ServerOf(place);
    MapAccess access = AccessHere(place, m_passwords.KeptLogin(server));
    access.login = &m_passwords.LoginFor(server);
    return access;
}

// What else the server says is told when the map is opened, where a password can be asked for.
void ServerActions::AwaitServer(const QString& place)
{
    if (StorePlace::IsFile(place))
        return;
    const QString server = ServerMaps::ServerOf(place);
    const auto reach = [server, login = m_passwords.KeptLogin(server)](Progress& progress) {
        ServerMaps::Access access;
        access.options.login = login.get();
        access.watcher = [&progress](double) { return !progress.IsCancelled(); };
        try {
            ServerMaps::Reach(server, access);
        } catch (const RunTimeError& error) {
            progress.StopIfCancelled();
            if (error.Number() == int(ErrorNumber::ConnectionLost))
                throw;
        }
    };
    RunOrGiveUp(&m_window, tr("Connecting to the server"), reach);
}

QString ServerActions::AskToOpen()
{
    return ServerMapDialog::AskToOpen(m_passwords, &m_window);
}

PlaceToSave ServerActions::AskToSave()
{
    return ServerMapDialog::AskToSave(m_document->Name(), m_passwords, &m_window);
}

QStringList ServerActions::AskForTables()
{
    const QStringList names = ReadOrGiveUp(
        &m_window, tr("Looking for tables"),
        [tables = m_document->Tables()](Progress& progress) { return tables->Names(progress); });
    return TablesDialog::Ask(names, &m_window);
}

QAction*
ServerActions::Add(QMenu& menu, QAction* before, const char* name, const QString& text, const QString& tip)
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setStatusTip(tip);
    menu.insertAction(before, action);
    return action;
}

void ServerActions::ShowWhatIsPossible()
{
    const bool isOnServer = IsOnServer(m_document);
    m_rights->setEnabled(isOnServer);
    m_folder->setEnabled(isOnServer);
    m_tables->setEnabled(isOnServer && !m_document->IsReadOnly());
}

void ServerActions::AskForRights()
{
    RightsDialog(m_document->Path(), m_passwords, &m_window).exec();
}

void ServerActions::AskForDataFolder()
{
    const QString place = m_document->Path();
    const QString folder = QFileDialog::getExistingDirectory(
        &m_window, tr("Folder of Shared Data"), ServerSettings::DataFolder(place));
    if (folder.isEmpty() || folder == ServerSettings::DataFolder(place))
        return;
    ServerSettings::SetDataFolder(place, folder);
    emit DataFolderChanged();
}

} // namespace Orvane
