// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesPage.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/manager/SchemeFileDialogs.h"
#include "hostkit/manager/SchemeReport.h"
#include "hostkit/manager/SchemesModel.h"
#include "hostkit/undo/SchemeSteps.h"
#include "hostkit/windows/TextPrompt.h"
#include "hostkit/windows/UserQuestions.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTableView>

namespace Orvane {

namespace {

constexpr int NameWidth = 30; // average characters

} // namespace

SchemesPage::SchemesPage(const ManagerHost& host, QWidget* parent)
    : QWidget(parent), m_host(host),
      m_model(new SchemesModel(
          [this](const QString& scheme) { return m_host.schemes.CountThatDiffer(scheme); }, this)),
      m_table(new QTableView(this))
{
    MakeTable();
    auto* columns = new QHBoxLayout(this);
    columns->addWidget(m_table, 1);
    auto* buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    MakeCommands(*buttons);
    connect(&m_counting, &QTimer::timeout, this, &SchemesPage::Count);
    const auto changed = [this] { GuardCommand(this, [this] { ReadAgain(); }); };
    connect(&host.notifications, &HostNotifications::SchemesChanged, this, changed);
    connect(&host.notifications, &HostNotifications::LayersChanged, this, changed);
    connect(&host.history, &UndoHistory::Changed, this, &SchemesPage::EnableCommands);
    GuardCommand(parent, [this] {
        ReadAgain();
        Choose({m_model->CurrentName()});
    });
    EnableCommands();
}

QByteArray SchemesPage::Columns() const
{
    return m_table->horizontalHeader()->saveState();
}

void SchemesPage::RestoreColumns(const QByteArray& state)
{
    m_table->horizontalHeader()->restoreState(state);
}

void SchemesPage::MakeTable()
{
    m_table->setObjectName(QStringLiteral("tblSchemes"));
    m_table->setAccessibleName(tr("Layer schemes"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    QHeaderView& header = *m_table->horizontalHeader();
    header.setHighlightSections(false);
    header.resizeSections(QHeaderView::ResizeToContents);
    header.setStretchLastSection(true);
    header.resizeSection(SchemesModel::Name, NameWidth * fontMetrics().averageCharWidth());
    m_table->setMinimumWidth(header.length() + 2 * m_table->frameWidth());
    connect(
        m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &SchemesPage::EnableCommands);
}

void SchemesPage::MakeCommands(QVBoxLayout& buttons)
{
    m_rename = MakeCommand("actRename", tr("&Rename..."), QKeySequence(Qt::Key_F2), &SchemesPage::Rename);
    m_duplicate = MakeCommand(
        "actDuplicate", tr("D&uplicate..."), QKeySequence(QStringLiteral("Ctrl+D")), &SchemesPage::Duplicate);
    m_delete = MakeCommand("actDelete", tr("&Delete"), QKeySequence::Delete, &SchemesPage::Delete);
    m_export = MakeCommand(
        "actExport", tr("&Export..."), QKeySequence(QStringLiteral("Ctrl+E")), &SchemesPage::Export);
    QAction* import = MakeCommand(
        "actImport", tr("&Import..."), QKeySequence(QStringLiteral("Ctrl+I")), &SchemesPage::Import);
    for (QAction* action : {m_rename, m_duplicate, m_delete, m_export, import}) {
        auto* button = new QPushButton(action->text(), this);
        button->setObjectName(QStringLiteral("cmd") + action->objectName().mid(3));
        button->setAutoDefault(false);
        button->setEnabled(action->isEnabled());
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, button, [=] { button->setEnabled(action->isEnabled()); });
        buttons.addWidget(button);
    }
    buttons.addStretch(1);
    m_undo = MakeCommand("actUndo", {}, QKeySequence::Undo, &SchemesPage::Undo);
    m_redo = MakeCommand("actRedo", {}, QKeySequence::Redo, &SchemesPage::Redo);
    for (QAction* action : HistoryActions())
        action->setShortcutContext(Qt::WindowShortcut);
}

QAction* SchemesPage::MakeCommand(
    const char* objectName, const QString& text, const QKeySequence& key, Command command)
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(objectName));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_table->addAction(action);
    connect(action, &QAction::triggered, this, [this, command] {
        GuardCommand(this, [&] { (this->*command)(); });
    });
    return action;
}

void SchemesPage::ReadAgain()
{
    const QStringList chosen = ChosenNames();
    m_model->Show(m_host.client.GetSchemeNames(), m_host.client.GetCurrentScheme());
    Choose(chosen);
    m_counting.start(0);
}

void SchemesPage::Count()
{
    if (!m_model->CountNext())
        m_counting.stop();
}

void SchemesPage::EnableCommands()
{
    const qsizetype chosen = ChosenNames().size();
    for (QAction* action : {m_rename, m_duplicate, m_export})
        action->setEnabled(chosen == 1);
    m_delete->setEnabled(chosen > 0);
    m_undo->setText(m_host.history.UndoText());
    m_undo->setEnabled(m_host.history.CanUndo());
    m_redo->setText(m_host.history.RedoText());
    m_redo->setEnabled(m_host.history.CanRedo());
}

void SchemesPage::Rename()
{
    const QString name = ChosenNames().value(0);
    const QString newName = AskName(tr("Rename Scheme"), name);
    if (newName.isEmpty() || newName == name)
        return;
    m_host.schemes.Rename(name, newName);
    Choose({newName});
}

void SchemesPage::Duplicate()
{
    const QString name = ChosenNames().value(0);
    const QString newName = AskName(tr("Duplicate Scheme"), tr("Copy of %1").arg(name));
    if (newName.isEmpty())
        return;
    m_host.schemes.Duplicate(name, newName);
    Choose({newName});
}

void SchemesPage::Delete()
{
    const QStringList names = ChosenNames();
    if (names.size() == m_model->rowCount()) {
        ShowNotice(this, tr("Delete Schemes"), tr("The last layer scheme cannot be deleted."));
        return;
    }
    const QString question = names.size() == 1
        ? tr("Delete the scheme \"%1\"? The layers stay as they are.").arg(NameInText(names.constFirst()))
        : tr("Delete %1 schemes? The layers stay as they are.").arg(QLocale().toString(names.size()));
    if (!AskYesOrNo(this, tr("Delete Schemes"), question))
        return;
    m_host.schemes.DeleteSeveral(names);
    Choose({m_model->CurrentName()});
}

void SchemesPage::Export()
{
    const QString name = ChosenNames().value(0);
    const QString path = SchemeFileDialogs::AskExportPath(this, name);
    if (!path.isEmpty())
        m_host.schemes.Export(name, path);
}

void SchemesPage::Import()
{
    const QString path = SchemeFileDialogs::AskImportPath(this);
    if (path.isEmpty())
        return;
    const auto import = m_host.schemes.ImportFile(path, [this](const QString& name) {
        return m_model->RowOf(name) < 0 || SchemeFileDialogs::AskToReplace(this, name);
    });
    if (import)
        Report(*import);
}

void SchemesPage::Report(const SchemeImport& import)
{
    Choose({import.name});
    if (AskAfterImport(import, import.name == m_model->CurrentName(), *this) == AfterImport::Switch)
        m_host.client.LoadScheme(import.name);
}

void SchemesPage::Undo()
{
    m_host.history.Undo();
}

void SchemesPage::Redo()
{
    m_host.history.Redo();
}

QStringList SchemesPage::ChosenNames() const
{
    QStringList names;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_table->selectionModel()->isRowSelected(row, {}))
            names << m_model->NameAt(row);
    }
    return names;
}

// Asks until the name is not blank; empty if the user cancels.
QString SchemesPage::AskName(const QString& title, const QString& proposed)
{
    for (;;) {
        const PromptAnswer answer
            = TextPrompt({title, proposed, EntryKind::Text, 0, 0, NameWidth}, this).Ask();
        const QString name = answer.text.trimmed();
        if (!answer.accepted || !name.isEmpty())
            return answer.accepted ? name : QString();
        ShowNotice(this, title, tr("Please supply a non-blank name, or cancel."));
    }
}

void SchemesPage::Choose(const QStringList& names)
{
    QItemSelectionModel& selection = *m_table->selectionModel();
    for (const QString& name : names) {
        const QModelIndex row = m_model->index(m_model->RowOf(name), SchemesModel::Name);
        if (!row.isValid())
            continue;
        if (!selection.currentIndex().isValid() || names.size() == 1)
            selection.setCurrentIndex(row, QItemSelectionModel::NoUpdate);
        selection.select(row, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

} // namespace Orvane
