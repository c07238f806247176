// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QAction;
class QMenu;
class QWidget;

namespace Orvane {

class MapSession;

/// The commands of the File menu for the data of a map: open data, open rasters, find missing data, choose
/// the columns of tables. They also show the user the problems of the data.
class DataActions : public QObject
{
    Q_OBJECT
public:
    /// Adds the commands to the menu, after the one that opens data. The window outlives this object.
    DataActions(QMenu& menu, const QAction* openData, QWidget& window);

    /// The commands work on the data of this map from now on, and its files are watched; not owned.
    void Use(MapSession& session);

    /// Shows the problems in one message, which offers to look for missing data. Does nothing when there are
    /// no problems.
    void ShowProblems(const QString& problems);

signals:
    /// The map shows other data than before.
    void DataChanged();
    /// The user has chosen these files to be added to the map.
    void DataChosen(const QStringList& paths);
    /// What a command has done, for the status bar.
    void Told(const QString& message);
    /// The map is to be saved under another name.
    void SaveAsWanted();

private:
    QAction* Add(QMenu& menu, QAction* before, const char* name, const QString& text, const QString& tip);
    void ShowWhatIsPossible();
    void TellMapIsGone();
    void FindData();
    void AskForColumns();
    void AskForData();
    void AskForRasters();
    void Reload();

    QWidget& m_window;
    MapSession* m_session = nullptr;
    QAction* m_find; // both owned by this object
    QAction* m_columns;
};

} // namespace Orvane
