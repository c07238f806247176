// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/manager/ManagerHost.h"

#include <QKeySequence>
#include <QList>
#include <QStringList>
#include <QTimer>
#include <QWidget>

class QAction;
class QTableView;
class QVBoxLayout;

namespace Orvane {

class SchemesModel;
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

    void MakeTable();
    void MakeCommands(QVBoxLayout& buttons);
    QAction*
    MakeCommand(const char* objectName, const QString& text, const QKeySequence& key, Command command);
    void ReadAgain();
    void Count();
    void EnableCommands();
    void Rename();
    void Duplicate();
    void Delete();
    void Export();
    void Import();
    void Report(const SchemeImport& import);
    void Undo();
    void Redo();
    QString AskName(const QString& title, const QString& proposed);
    void Choose(const QStringList& names);

    ManagerHost m_host;
    SchemesModel* m_model;
    QTableView* m_table;
    QAction* m_rename = nullptr; // the actions are owned by the page
    QAction* m_duplicate = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_export = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QTimer m_counting;
};

} // namespace Orvane
