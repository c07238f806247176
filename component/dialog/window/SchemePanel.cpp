// SPDX-License-Identifier: MIT
#include "component/dialog/window/SchemePanel.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/FirstError.h"
#include "component/common/HostInterface.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "messages/NameInText.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/ISchemeManager.h>
#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QPointer>

namespace Orvane {

namespace {

constexpr int NameWidth = 20;

// The host's window for all schemes; nullptr if it has none.
ISchemeManager* Manager()
{
    auto* manager = HostInterface<ISchemeManager>();
    return manager && manager->CanManageSchemes() ? manager : nullptr;
}

} // namespace

SchemePanel::SchemePanel(const Widgets& widgets, QObject* parent) : QObject(parent), m_widgets(widgets)
{
    Wire(widgets.cmdNew, &SchemePanel::New);
    Wire(widgets.cmdSave, &SchemePanel::Save);
    Wire(widgets.cmdRevert, &SchemePanel::Revert);
    Wire(widgets.cmdDelete, &SchemePanel::Delete);
    Wire(widgets.cmdSaveStartup, &SchemePanel::SaveToStartup);
    widgets.cmdManage->hide(); // until it is known that the host has such a window
    connect(widgets.cmdManage, &QAbstractButton::clicked, this, [this] {
        GuardAfterEvent(this, Owner(), [this] { Manage(); });
    });
    connect(widgets.cmbScheme, &QComboBox::textActivated, this, [this](const QString& name) {
        GuardAfterEvent(this, Owner(), [this, name] { SwitchTo(name); });
    });
}

void SchemePanel::Fill()
{
    const QStringList names = Client().GetSchemeNames();
    m_widgets.cmbScheme->clear();
    m_widgets.cmbScheme->addItems(names);
    m_widgets.cmdManage->setVisible(Manager() != nullptr);
    ShowCurrent();
}

void SchemePanel::SwitchTo(const QString& name)
{
    if (CurrentScheme() == name) {
        EnableButtons();
        return;
    }
    const QString question = TranslateMsg(
        "Switch to '^1'? Any unsaved changes to the current scheme will be lost. Continue?",
        NameInQuestion(name));
    const QPointer self(this); // the host may close the dialog while the question waits
    if (Confirm(question))
        LoadAndShow(name);
    else if (self)
        ShowCurrent();
}

// The list shows the user's choice already: without an answer it goes back to the scheme that it showed.
QString SchemePanel::CurrentScheme()
{
    try {
        return Client().GetCurrentScheme();
    } catch (...) {
        ShowInList(m_shown);
        throw;
    }
}

void SchemePanel::New()
{
    const QPointer self(this); // as above
    while (self) {
        const PromptAnswer answer = Client().PromptText(
            {.title = TranslateMsg("New Scheme"), .defaultText = {}, .width = NameWidth});
        if (!self || !answer.accepted)
            return;
        const QString name = answer.text.trimmed();
        if (!name.isEmpty()) {
            ChangeSchemes([&] {
                const BusyPointer busy;
                Client().CreateScheme(name);
            });
            return;
        }
        ShowMessageBox(
            Owner(), TranslateMsg("Please supply a non-blank name, or cancel."), BoxStyle::OkInformation);
    }
}

void SchemePanel::Save()
{
    const QString name = m_widgets.cmbScheme->currentText();
    if (!Confirm(TranslateMsg("Save current layer setup to scheme '^1'?", NameInQuestion(name))))
        return;
    const BusyPointer busy;
    Client().SaveScheme(name);
}

void SchemePanel::Revert()
{
    const QString name = m_widgets.cmbScheme->currentText();
    if (!Confirm(TranslateMsg("Revert to the last saved values in layer scheme '^1'?", NameInQuestion(name))))
        return;
    LoadAndShow(name);
}

void SchemePanel::Delete()
{
    const QString name = m_widgets.cmbScheme->currentText();
    if (m_widgets.cmbScheme->count() <= 1) {
        ShowMessageBox(
            Owner(), TranslateMsg("The last layer scheme cannot be deleted."), BoxStyle::OkInformation);
        return;
    }
    if (!Confirm(TranslateMsg("Delete layer scheme '^1'?", NameInQuestion(name))))
        return;
    const QPointer self(this);
    ChangeSchemes([&] {
        Load(Neighbour(name));
        if (self)
            Client().DeleteScheme(name);
    });
    if (self && m_widgets.cmbScheme->currentIndex() < 0) {
        m_widgets.cmbScheme->setCurrentIndex(0);
        EnableButtons();
    }
}

void SchemePanel::SaveToStartup()
{
    const QString question
        = TranslateMsg("Are you sure you wish to save the colour schemes to the startup database?");
    if (!Confirm(question))
        return;
    const BusyPointer busy;
    Client().SaveSchemesToStartup();
}

void SchemePanel::Manage()
{
    ISchemeManager* manager = Manager();
    if (!manager)
        return;
    const QPointer self(this); // as above
    FirstError errors;
    errors.Try([&] { manager->ManageSchemes(Owner()); });
    if (self)
        emit SchemeLoaded();
    if (self)
        errors.Try([this] { Fill(); });
    errors.Rethrow();
}

void SchemePanel::Wire(QAbstractButton* button, void (SchemePanel::*action)())
{
    connect(button, &QAbstractButton::clicked, this, [this, action] {
        GuardEvent(Owner(), [this, action] { (this->*action)(); });
    });
}

void SchemePanel::ShowCurrent()
{
    ShowInList(Client().GetCurrentScheme());
    EnableButtons();
}

void SchemePanel::ShowInList(const QString& name)
{
    m_shown = name;
    QComboBox& list = *m_widgets.cmbScheme;
    list.setCurrentIndex(list.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void SchemePanel::EnableButtons()
{
    const bool isShown = m_widgets.cmbScheme->currentIndex() >= 0;
    m_widgets.cmdSave->setEnabled(isShown);
    m_widgets.cmdRevert->setEnabled(isShown);
    m_widgets.cmdDelete->setEnabled(isShown);
}

// Afterwards the list shows the host's schemes, even if the change has failed half way.
void SchemePanel::ChangeSchemes(const std::function<void()>& change)
{
    const QPointer self(this);
    FirstError errors;
    errors.Try(change);
    if (self)
        errors.Try([this] { Fill(); });
    errors.Rethrow();
}

void SchemePanel::Load(const QString& name)
{
    const QPointer self(this);
    {
        const BusyPointer busy;
        Client().LoadScheme(name);
    }
    if (self)
        emit SchemeLoaded();
}

void SchemePanel::LoadAndShow(const QString& name)
{
    const QPointer self(this);
    FirstError errors;
    errors.Try([&] { Load(name); });
    if (self)
        errors.Try([this] { ShowCurrent(); });
    errors.Rethrow();
}

bool SchemePanel::Confirm(const QString& question) const
{
    return ShowMessageBox(Owner(), question, BoxStyle::YesNoQuestion) == BoxAnswer::Yes;
}

QString SchemePanel::Neighbour(const QString& name) const
{
    const QComboBox& list = *m_widgets.cmbScheme;
    const int index = list.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return list.itemText(index + 1 < list.count() ? index + 1 : index - 1);
}

QWidget* SchemePanel::Owner() const
{
    return m_widgets.cmbScheme->window();
}

} // namespace Orvane
