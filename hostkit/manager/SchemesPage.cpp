// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesPage.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/manager/SchemeFileDialogs.h"
#include "hostkit/manager/SchemeOrder.h"
#include "hostkit/manager/SchemePartsDialog.h"
#include "hostkit/manager/SchemeReport.h"
#include "hostkit/manager/SchemesModel.h"
#include "hostkit/manager/SchemesTable.h"
#include "hostkit/undo/SchemeSteps.h"
#include "hostkit/windows/OwnedDialog.h"
#include "hostkit/windows/TextPrompt.h"
#include "hostkit/windows/UserQuestions.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int NameWidth = 30; // average characters

} // namespace

SchemesPage::SchemesPage(const ManagerHost& host, QWidget* parent)
    : QWidget(parent), m_host(host),
      m_model(new SchemesModel(
          [this](const QString& scheme) { return m_host.schemes.CountThatDiffer(scheme); }, this)),
      m_table(new SchemesTable(*m_model, this))
{
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    left->addWidget(m_table, 1);
    columns->addLayout(left, 1);
    auto* buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    MakeCommands(*buttons);
    left->addWidget(MakeOpeningBox());
    m_table->AddSorting();
    MakeHistory();
    Wire();
    GuardCommand(parent, [this] {
        ReadAgain(false);
        m_table->Choose({m_model->CurrentName()});
    });
    EnableCommands();
}

void SchemesPage::Wire()
{
    connect(&m_counting, &QTimer::timeout, this, &SchemesPage::Count);
    const auto readAgain
        = [this](bool areValuesKept) { GuardCommand(this, [&] { ReadAgain(areValuesKept); }); };
    connect(
        &m_host.notifications, &HostNotifications::SchemesChanged, this,
        [readAgain](const QString&, bool areValuesKept) { readAgain(areValuesKept); });
    connect(
        &m_host.notifications, &HostNotifications::LayersChanged, this, [readAgain] { readAgain(false); });
    connect(&m_host.history, &UndoHistory::Changed, this, &SchemesPage::EnableCommands);
    connect(m_table, &SchemesTable::Sorted, this, &SchemesPage::EnableCommands);
    connect(
        m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &SchemesPage::EnableCommands);
    const auto arrange = [this](const QStringList& names, int row) {
        GuardCommand(this, [&] { Arrange(SchemeOrder::MovedTo(m_model->Names(), names, row)); });
    };
    connect(m_model, &SchemesModel::Dropped, this, arrange, Qt::QueuedConnection); // after the drag
}

QStringList SchemesPage::ChosenNames() const
{
    return m_table->ChosenNames();
}

QByteArray SchemesPage::Columns() const
{
    return m_table->Columns();
}

void SchemesPage::RestoreColumns(const QByteArray& state)
{
    m_table->RestoreColumns(state);
    m_table->setColumnHidden(
        SchemesModel::AtOpening, !m_host.appliesAtOpening); // the state may say otherwise
}

void SchemesPage::MakeCommands(QVBoxLayout& buttons)
{
    const auto key = [](const char* keys) { return QKeySequence(QLatin1String(keys)); };
    MakeButton(*MakeCommand("actNew", tr("&New..."), key("Ctrl+N"), &SchemesPage::New), buttons);
    m_rename = MakeCommand("actRename", tr("&Rename..."), QKeySequence(Qt::Key_F2), &SchemesPage::Rename);
    m_duplicate = MakeCommand("actDuplicate", tr("D&uplicate..."), key("Ctrl+D"), &SchemesPage::Duplicate);
    m_holds = MakeCommand("actHolds", tr("&Holds..."), key("Ctrl+H"), &SchemesPage::ChangeHolds);
    m_delete = MakeCommand("actDelete", tr("&Delete"), QKeySequence::Delete, &SchemesPage::Delete);
    for (QAction* action : {m_rename, m_duplicate, m_holds, m_delete})
        MakeButton(*action, buttons);
    m_export = MakeCommand("actExport", tr("&Export..."), key("Ctrl+E"), &SchemesPage::Export);
    MakeButton(*m_export, buttons);
    MakeButton(*MakeCommand("actImport", tr("&Import..."), key("Ctrl+I"), &SchemesPage::Import), buttons);
    m_up = MakeCommand("actMoveUp", tr("&Move Up"), key("Alt+Up"), &SchemesPage::MoveUp);
    m_down = MakeCommand("actMoveDown", tr("Move Do&wn"), key("Alt+Down"), &SchemesPage::MoveDown);
    m_sort = MakeCommand("actSortByName", tr("S&ort by Name"), {}, &SchemesPage::SortByName);
    for (QAction* action : {m_up, m_down, m_sort})
        MakeButton(*action, buttons);
    buttons.addStretch(1);
}

void SchemesPage::MakeButton(QAction& action, QVBoxLayout& buttons)
{
    auto* button = new QPushButton(action.text(), this);
    button->setObjectName(QStringLiteral("cmd") + action.objectName().mid(3));
    button->setAutoDefault(false);
    button->setEnabled(action.isEnabled());
    connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    connect(&action, &QAction::changed, button, [button, action = &action] {
        button->setEnabled(action->isEnabled());
        button->setToolTip(action->isEnabled() ? QString() : action->statusTip());
    });
    buttons.addWidget(button);
}

// A host that does not open maps has no use for it.
QWidget* SchemesPage::MakeOpeningBox()
{
    auto* box = new QCheckBox(tr("&Apply When the Map Is Opened"), this);
    box->setObjectName(QStringLiteral("chkAtOpening"));
    m_table->setColumnHidden(SchemesModel::AtOpening, !m_host.appliesAtOpening);
    box->setVisible(m_host.appliesAtOpening);
    if (!m_host.appliesAtOpening)
        return box;
    m_opening = MakeCommand("actAtOpening", box->text(), {}, &SchemesPage::SwitchOpening);
    m_opening->setCheckable(true);
    connect(box, &QCheckBox::clicked, m_opening, &QAction::trigger);
    connect(m_opening, &QAction::changed, box, [box, action = m_opening] {
        box->setEnabled(action->isEnabled());
        box->setChecked(action->isChecked());
    });
    return box;
}

void SchemesPage::MakeHistory()
{
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

void SchemesPage::ReadAgain(bool areValuesKept)
{
    using Counts = SchemesModel::Counts;
    const std::vector<SchemeDetails> chosen
        = m_model->DetailsOf(ChosenNames()); // they may have other names now
    m_model->Show(Schemes(), areValuesKept ? Counts::Keep : Counts::Forget);
    m_table->Choose(m_model->NamesOf(chosen));
    EnableCommands(); // the choice may be as it was
    m_counting.start(0);
}

// The names are those that the host lists.
std::vector<SchemeDetails> SchemesPage::Schemes()
{
    const std::vector<SchemeDetails> known = m_host.schemes.All();
    const QStringList names = m_host.client.GetSchemeNames();
    const QString current = m_host.client.GetCurrentScheme();
    std::vector<SchemeDetails> schemes;
    schemes.reserve(std::size_t(names.size()));
    for (const QString& name : names) {
        const auto found = std::find_if(
            known.begin(), known.end(), [&](const SchemeDetails& scheme) { return scheme.name == name; });
        schemes.push_back(found == known.end() ? SchemeDetails() : *found);
        schemes.back().name = name;
        schemes.back().isCurrent = name == current;
    }
    return schemes;
}

void SchemesPage::Count()
{
    if (!m_model->CountNext())
        m_counting.stop();
}

void SchemesPage::EnableCommands()
{
    const QStringList chosen = ChosenNames();
    for (QAction* action : {m_rename, m_duplicate, m_holds, m_export})
        action->setEnabled(chosen.size() == 1);
    m_delete->setEnabled(!chosen.isEmpty());
    EnableMoves(chosen);
    if (m_opening) {
        const int row = chosen.size() == 1 ? m_model->RowOf(chosen.constFirst()) : -1;
        m_opening->setEnabled(row >= 0);
        m_opening->setChecked(row >= 0 && m_model->DetailsAt(row).isAtOpening);
    }
    m_undo->setText(m_host.history.UndoText());
    m_undo->setEnabled(m_host.history.CanUndo());
    m_redo->setText(m_host.history.RedoText());
    m_redo->setEnabled(m_host.history.CanRedo());
}

void SchemesPage::EnableMoves(const QStringList& chosen)
{
    const QStringList names = m_model->Names();
    const bool isSorted = !m_model->IsInUsersOrder();
    const QString why
        = isSorted ? tr("The table is sorted by a column. Go back to your own order first.") : QString();
    for (QAction* action : {m_up, m_down})
        action->setStatusTip(why);
    m_up->setEnabled(!isSorted && SchemeOrder::MovedUp(names, chosen) != names);
    m_down->setEnabled(!isSorted && SchemeOrder::MovedDown(names, chosen) != names);
    bool hasPlaces = false;
    for (int row = 0; row < m_model->rowCount(); ++row)
        hasPlaces |= m_model->DetailsAt(row).place.has_value();
    m_sort->setEnabled(hasPlaces);
}

void SchemesPage::New()
{
    const OwnedDialog<SchemePartsDialog> dialog(tr("New Scheme"), WholeScheme, this);
    dialog->AskForName();
    dialog->AddRemark(tr("It gets the present values of the layers. The current scheme stays current."));
    if (dialog->exec() != QDialog::Accepted)
        return;
    m_host.schemes.Add(dialog->Name(), dialog->Holds());
    ChooseOnly(dialog->Name());
}

void SchemesPage::ChangeHolds()
{
    const QString name = ChosenNames().value(0);
    const int row = m_model->RowOf(name);
    if (row < 0)
        return;
    const SchemeParts held = m_model->DetailsAt(row).holds;
    const OwnedDialog<SchemePartsDialog> dialog(tr("What \"%1\" Holds").arg(NameInText(name)), held, this);
    dialog->AddRemark(tr("What is added gets the present values of the layers; what is taken away is lost."));
    if (dialog->exec() == QDialog::Accepted && dialog->Holds() != held)
        m_host.schemes.SetHolds(name, dialog->Holds());
}

void SchemesPage::MoveUp()
{
    Arrange(SchemeOrder::MovedUp(m_model->Names(), ChosenNames()));
}

void SchemesPage::MoveDown()
{
    Arrange(SchemeOrder::MovedDown(m_model->Names(), ChosenNames()));
}

void SchemesPage::SortByName()
{
    Arrange({});
}

// names: an empty list for the natural order.
void SchemesPage::Arrange(const QStringList& names)
{
    if (names == m_model->Names())
        return;
    m_host.schemes.SetOrder(names);
    m_table->scrollTo(m_table->currentIndex());
}

// The box shows what is stored, whatever the click made of it.
void SchemesPage::SwitchOpening()
{
    const QString name = ChosenNames().value(0);
    const int row = m_model->RowOf(name);
    const bool wasChosen = row >= 0 && m_model->DetailsAt(row).isAtOpening;
    const QPointer self(this); // the host may end the window while the error is shown
    const bool isStored
        = GuardCommand(this, [&] { m_host.schemes.SetAtOpening(wasChosen ? QString() : name); });
    if (!isStored && self)
        EnableCommands();
}

void SchemesPage::Rename()
{
    const QString name = ChosenNames().value(0);
    const QString newName = AskName(tr("Rename Scheme"), name);
    if (newName.isEmpty() || newName == name)
        return;
    m_host.schemes.Rename(name, newName);
    m_table->Choose({newName});
}

void SchemesPage::Duplicate()
{
    const QString name = ChosenNames().value(0);
    const QString newName = AskName(tr("Duplicate Scheme"), tr("Copy of %1").arg(name));
    if (newName.isEmpty())
        return;
    m_host.schemes.Duplicate(name, newName);
    ChooseOnly(newName);
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
    m_table->Choose({m_model->CurrentName()});
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
    ChooseOnly(import.name);
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

// Asks until the name is not blank; empty if the user cancels.
QString SchemesPage::AskName(const QString& title, const QString& proposed)
{
    const QPointer self(this);
    while (self) {
        const PromptRequest request{title, proposed, EntryKind::Text, 0, 0, NameWidth};
        const PromptAnswer answer = OwnedDialog<TextPrompt>(request, this)->Ask();
        const QString name = answer.text.trimmed();
        if (!answer.accepted || !name.isEmpty())
            return answer.accepted ? name : QString();
        ShowNotice(this, title, tr("Please supply a non-blank name, or cancel."));
    }
    return {};
}

void SchemesPage::ChooseOnly(const QString& name)
{
    m_table->clearSelection();
    m_table->Choose({name});
}

} // namespace Orvane
