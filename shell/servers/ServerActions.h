// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/document/MapDocument.h"
#include "shell/servers/ReadOnlyMark.h"
#include "shell/servers/ServerPasswords.h"

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace Orvane {

struct PlaceToSave;

/// The commands about maps on servers, and what the status bar says about a map that can only be read. In a
/// program that was built without PostgreSQL there are none.
class ServerActions : public QObject
{
    Q_OBJECT
public:
    /// Adds the commands to the menu, after that action. All outlive this object.
    ServerActions(QMenu& menu, QAction* after, QMainWindow& window);

    /// The commands work on this map from now on; not owned.
    void Use(MapDocument& document);

    /// What the window is called for that map: its name, the server of a map on one, and whether it may only
    /// be read.
    QString TitleOfMap() const;

    /// A place as text, so that equal places have equal texts. Raises DatabaseFailure for a place that begins
    /// as one on a server and is none.
    static QString Canonical(const QString& place);
    /// How a map is opened: who asks for the passwords of its server, and where its data are on this
    /// computer. For a map in a file there is nothing to say. Raises DatabaseFailure for a place that is
    /// none.
    MapAccess AccessTo(const QString& place);

    /// Returns when the server of a map answers, and at once for a map in a file; the user can cancel
    /// meanwhile, which raises Cancelled. Raises ConnectionLost if the server cannot be reached. A password
    /// is not asked for.
    void AwaitServer(const QString& place);

    /// Asks for a map on a server; empty if the user cancels. Raises errors.
    QString AskToOpen();
    /// Asks which tables of the map's server to add; empty if the user cancels. Raises errors.
    QStringList AskForTables();
    /// Asks where to store the map on a server; an empty place if the user cancels. Raises errors.
    PlaceToSave AskToSave();

signals:
    /// The user wants to open a map from a server.
    void OpenWanted();
    /// The user wants to store the map on a server.
    void SaveWanted();
    /// The user wants to add tables of the map's server to it.
    void TablesWanted();
    /// Data of the map are now looked for in another folder.
    void DataFolderChanged();

private:
    QAction* Add(QMenu& menu, QAction* before, const char* name, const QString& text, const QString& tip);
    void ShowWhatIsPossible();
    void AskForRights();
    void AskForDataFolder();

    QMainWindow& m_window;
    ServerPasswords m_passwords;
    MapDocument* m_document = nullptr;
    ReadOnlyMark m_readOnly;
    QAction* m_rights = nullptr; // owned by this object, as the next ones
    QAction* m_folder = nullptr;
    QAction* m_tables = nullptr;
};

} // namespace Orvane
