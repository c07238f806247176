// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QAction;
class QMenu;
class QWidget;

namespace Orvane {

class MapSession;

/// The commands of the File menu that concern the data of a map: look for what is missing, lay a picture
/// under it. They also tell the person what is wrong with data.
class DataActions : public QObject
{
    Q_OBJECT
public:
    /// Adds the commands to the menu, behind that one. The window outlives this object.
    DataActions(QMenu& menu, const QAction* behind, QWidget& window);

    /// The map whose data are meant from now on, and whose files are looked after; not owned.
    void Use(MapSession& session);

    /// Shows the problems in one message, which offers to look for data that are missing; nothing when there
    /// are none.
    void ShowProblems(const QString& problems);

signals:
    /// The map shows other data than before.
    void DataChanged();
    /// The map is to be saved under another name.
    void SaveAsWanted();

private:
    QAction* Add(QMenu& menu, QAction* before, const char* name, const QString& text, const QString& tip);
    void ShowWhatIsPossible();
    void TellMapIsGone();
    void FindData();
    void AskForBackdrop();
    void RemoveBackdrop();
    void Reload();

    QWidget& m_window;
    MapSession* m_session = nullptr;
    QAction* m_find; // all three owned by this object
    QAction* m_backdrop;
    QAction* m_noBackdrop;
};

} // namespace Orvane
