// SPDX-License-Identifier: MIT
#include "shell/actions/SchemeActions.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/manager/SchemeFileDialogs.h"
#include "hostkit/manager/SchemeReport.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "mapkit/common/Guard.h"
#include "messages/NameInText.h"
#include "ovctrls/BusyPointer.h"
#include "shell/actions/LayerControl.h"
#include "shell/actions/SchemeStatus.h"
#include "shell/map/MapSession.h"
#include "shell/window/Confirm.h"

#include <QActionGroup>
#include <QApplication>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>

namespace Orvane {

namespace {

constexpr int MessageTime = 15000; // milliseconds

} // namespace

SchemeActions::SchemeActions(QMenu& menu, QStatusBar& statusBar, LayerControl& control, QWidget& window)
    : m_menu(menu), m_statusBar(statusBar), m_control(control), m_window(window),
      m_status(new SchemeStatus(&statusBar)), m_schemes(new QActionGroup(this))
{
    statusBar.addPermanentWidget(m_status);
    m_menu.menuAction()->setStatusTip(tr("Named sets of the settings of all layers"));
    MakeCommands();
    connect(&m_menu, &QMenu::aboutToShow, this, [this] { Guard(&m_window, [this] { Fill(); }); });
}

void SchemeActions::Use(MapSession& session)
{
    m_session = &session;
    m_status->Use(session);
    const HostNotifications& events = session.Shell().Notifications();
    connect(&events, &HostNotifications::SchemeLoaded, this, [this](const QString& name) {
        Guard(&m_window, [&] { TellLayersLeftAlone(name); });
    });
    connect(&events, &HostNotifications::SchemesSavedToStartup, this, [this] {
        m_statusBar.showMessage(tr("All schemes of this map were saved for new maps."), MessageTime);
    });
}

void SchemeActions::ApplyAtOpening()
{
    Guard(&m_window, [this] {
        if (const std::optional<QString> scheme = m_session->ApplySchemeAtOpening())
            TellApplied(*scheme);
    });
}

void SchemeActions::MakeCommands()
{
    m_listEnd = m_menu.addSeparator();
    m_save = MakeCommand("actSaveScheme", tr("&Save Scheme"), &SchemeActions::Save);
    m_revert = MakeCommand("actRevertScheme", tr("&Revert to Saved Scheme"), &SchemeActions::Revert);
    m_menu.addSeparator();
    MakeCommand("actExportScheme", tr("&Export Scheme..."), &SchemeActions::Export);
    MakeCommand("actImportScheme", tr("&Import Scheme..."), &SchemeActions::Import);
}

QAction*
SchemeActions::MakeCommand(const char* objectName, const QString& text, void (SchemeActions::*command)())
{
    QAction* action = m_menu.addAction(text);
    action->setObjectName(QLatin1String(objectName));
    connect(action, &QAction::triggered, this, [this, command] {
        Guard(&m_window, [&] { (this->*command)(); });
    });
    return action;
}

void SchemeActions::Fill()
{
    const QString current = Current();
    FillList(m_session->Client().GetSchemeNames(), current);
    const bool differs = m_session->Shell().HasUnsavedSchemeChanges();
    m_save->setText(tr("&Save Scheme \"%1\"").arg(NameInMenu(current)));
    m_save->setEnabled(differs);
    m_revert->setEnabled(differs);
}

void SchemeActions::FillList(const QStringList& names, const QString& current)
{
    qDeleteAll(m_schemes->actions());
    for (const QString& name : names) {
        auto* action = new QAction(NameInMenu(name), m_schemes);
        action->setCheckable(true);
        action->setChecked(name == current);
        connect(
            action, &QAction::triggered, this, [this, name] { Guard(&m_window, [&] { SwitchTo(name); }); });
    }
    m_menu.insertActions(m_listEnd, m_schemes->actions());
}

void SchemeActions::SwitchTo(const QString& name)
{
    if (name != Current())
        LoadAfterQuestions(name);
}

// The editors ask first: changes that are applied then may have to be saved to the scheme.
void SchemeActions::LoadAfterQuestions(const QString& name)
{
    ChangeLayers([&] {
        if (name == Current() || MayLeaveCurrent(name))
            Load(name);
    });
}

void SchemeActions::Load(const QString& name)
{
    const BusyPointer busy;
    m_session->Client().LoadScheme(name);
}

bool SchemeActions::MayLeaveCurrent(const QString& next)
{
    if (!m_session->Shell().HasUnsavedSchemeChanges())
        return true;
    const QString question = tr("Layers differ from the scheme \"%1\". Save it before switching to \"%2\"?");
    QMessageBox box(
        QMessageBox::Question, tr("Switch Scheme"), question.arg(NameInText(Current()), NameInText(next)),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    box.setObjectName(QStringLiteral("dlgSwitchScheme"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    if (answer == QMessageBox::Save)
        m_session->Client().SaveScheme(Current());
    return answer == QMessageBox::Save || answer == QMessageBox::Discard;
}

void SchemeActions::Save()
{
    const QString name = Current();
    const QString question
        = tr("Save the current layer settings to the scheme \"%1\"?").arg(NameInText(name));
    if (Confirm(m_window, tr("Save Scheme"), question))
        m_session->Client().SaveScheme(name);
}

void SchemeActions::Revert()
{
    const QString name = Current();
    const QString question
        = tr("Revert the layers to the values saved in the scheme \"%1\"?").arg(NameInText(name));
    if (Confirm(m_window, tr("Revert Scheme"), question))
        ChangeLayers([&] { Load(name); });
}

void SchemeActions::Export()
{
    const QString name = Current();
    const QString path = SchemeFileDialogs::AskExportPath(&m_window, name);
    if (path.isEmpty())
        return;
    const BusyPointer busy;
    m_session->Shell().ExportScheme(name, path);
    m_statusBar.showMessage(tr("The scheme \"%1\" was exported.").arg(NameInText(name)), MessageTime);
}

void SchemeActions::Import()
{
    const QString path = SchemeFileDialogs::AskImportPath(&m_window);
    if (path.isEmpty())
        return;
    const auto import
        = m_session->Shell().ImportSchemeFile(path, [this](const QString& name) { return MayReplace(name); });
    if (import)
        Report(*import);
}

bool SchemeActions::MayReplace(const QString& name)
{
    return !m_session->Client().GetSchemeNames().contains(name)
        || SchemeFileDialogs::AskToReplace(&m_window, name);
}

void SchemeActions::Report(const SchemeImport& import)
{
    if (AskAfterImport(import, import.name == Current(), m_window) == AfterImport::Switch)
        LoadAfterQuestions(import.name);
}

// An open editor would show outdated values; closing it asks about its edits first.
void SchemeActions::ChangeLayers(const std::function<void()>& change)
{
    m_control.WithEditorsClosed(change);
}

// Empty if there are none.
QString SchemeActions::LayersLeftAlone(const QString& scheme)
{
    const qsizetype count = m_session->Shell().UnsavedSchemeChanges();
    return count == 0 ? QString()
                      : tr("Layers not in the scheme \"%1\", left unchanged: %2")
                            .arg(NameInText(scheme), QLocale().toString(count));
}

void SchemeActions::TellLayersLeftAlone(const QString& scheme)
{
    const QString layers = LayersLeftAlone(scheme);
    if (!layers.isEmpty())
        m_statusBar.showMessage(layers, MessageTime);
}

void SchemeActions::TellApplied(const QString& scheme)
{
    const QString applied
        = tr("The scheme \"%1\" was applied when the map was opened.").arg(NameInText(scheme));
    const QStringList both{applied, LayersLeftAlone(scheme)};
    m_statusBar.showMessage(both.join(u' ').trimmed(), MessageTime);
}

QString SchemeActions::Current() const
{
    return m_session->Client().GetCurrentScheme();
}

} // namespace Orvane
