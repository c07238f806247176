// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/manager/ManagerHost.h"
#include "hostkit/schemes/SchemeDetails.h"

#include <QKeySequence>
#include <QList>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <vector>

class QAction;
class QVBoxLayout;

namespace Orvane {

class SchemesModel;
class SchemesTable;
struct SchemeImport;

/// The table of all schemes with its commands, each as a button, in the context menu and by a key. How many
/// layers differ from each scheme is counted while the program waits for the user.
class SchemesPage : public QWidget
{
    Q_OBJECT

public:
    /// host: its parts outlive this page.
    explicit SchemesPage(const ManagerHost& host, QWidget* parent = nullptr);

    /// The widths of the columns, to be kept; anything that is not such a state changes nothing.
    QByteArray Columns() const;
    void RestoreColumns(const QByteArray& state);

    /// In the order of the table.
    QStringList ChosenNames() const;
    /// Undo and redo, for the whole window; owned by this page.
    QList<QAction*> HistoryActions() const { return {m_undo, m_redo}; }

private:
    using Command = void (SchemesPage::*)();

    void MakeCommands(QVBoxLayout& buttons);
    void MakeButton(QAction& action, QVBoxLayout& buttons);
    QWidget* MakeOpeningBox();
    void MakeHistory();
    void Wire();
    QAction*
    MakeCommand(const char* objectName, const QString& text, const QKeySequence& key, Command command);
    void ReadAgain(bool areValuesKept);
    std::vector<SchemeDetails> Schemes();
    void Count();
    void EnableCommands();
    void EnableMoves(const QStringList& chosen);
    void New();
    void ChangeHolds();
    void Rename();
    void Duplicate();
    void Delete();
    void Export();
    void Import();
    void MoveUp();
    void MoveDown();
    void SortByName();
    void Arrange(const QStringList& names);
    void SwitchOpening();
    void ChooseOnly(const QString& name);
    void Report(const SchemeImport& import);
    void Undo();
    void Redo();
    QString AskName(const QString& title, const QString& proposed);

    ManagerHost m_host;
    SchemesModel* m_model;
    SchemesTable* m_table;
    QAction* m_holds = nullptr; // the actions are owned by the page
    QAction* m_rename = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_export = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    QAction* m_sort = nullptr;
    QAction* m_opening = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QTimer m_counting;
};

} // namespace Orvane
