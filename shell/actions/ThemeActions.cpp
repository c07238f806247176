// SPDX-License-Identifier: MIT
#include "shell/actions/ThemeActions.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/undo/UndoHistory.h"
#include "hostkit/windows/LongWork.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/document/MapThemes.h"
#include "messages/NameInText.h"
#include "shell/actions/LayerControl.h"
#include "shell/actions/ThemeFilter.h"
#include "shell/map/MapSession.h"
#include "shell/window/Confirm.h"

#include <OrvaneShellLib/PromptRequest.h>

#include <QMenu>
#include <QMessageBox>

#include <utility>
#include <vector>

namespace Orvane {

namespace {

constexpr auto EditorPrefix = "Theme:";
constexpr int NameWidth = 30; // characters

QString EditorIDOf(qint32 themeID)
{
    return QLatin1String(EditorPrefix) + QString::number(themeID);
}

std::optional<qint32> ThemeOf(const QString& editorID)
{
    bool isNumber = false;
    const qint32 themeID = editorID.mid(qsizetype(strlen(EditorPrefix))).toInt(&isNumber);
    if (!isNumber || !editorID.startsWith(QLatin1String(EditorPrefix)))
        return std::nullopt;
    return themeID;
}

} // namespace

ThemeActions::ThemeActions(QMenu& menu, LayerControl& control, QWidget& window)
    : m_menu(menu), m_names(new QMenu(tr("&Rename Theme"), &menu)),
      m_deletions(new QMenu(tr("&Delete Theme"), &menu)), m_control(control), m_window(window)
{
    m_menu.menuAction()->setStatusTip(tr("Lists of the layers that you need for one task, without settings"));
    m_names->setObjectName(QStringLiteral("menuRenameTheme"));
    m_deletions->setObjectName(QStringLiteral("menuDeleteTheme"));
    connect(&m_menu, &QMenu::aboutToShow, this, [this] { Guard(&m_window, [this] { Fill(); }); });
}

void ThemeActions::Use(MapSession& session)
{
    m_session = &session;
    ShellClient& shell = session.Shell();
    // Queued: the step that is undone still tells the open editors about it.
    connect(
        &shell.History(), &UndoHistory::Changed, this,
        [this] { LongWork::RunAfter(this, [this] { Guard(&m_window, [this] { FollowHistory(); }); }); },
        Qt::QueuedConnection);
    shell.SetThemeNames([this](const QString& editorID) { return ThemeNameOf(editorID); });
    connect(&shell.Notifications(), &HostNotifications::LayerCreated, this, [this, &shell](qint32 layerID) {
        Guard(&m_window, [&] { AddToTheme(shell.CreatingEditor(), layerID); });
    });
}

void ThemeActions::Open(qint32 themeID)
{
    const OpenTheme theme = Stored(themeID);
    m_control.Show(EditorIDOf(themeID), std::make_shared<ThemeFilter>(theme.layers));
    m_open[themeID] = theme;
    m_session->Shell().RaiseEditor(EditorIDOf(themeID));
}

void ThemeActions::Fill()
{
    m_menu.clear();
    QAction* create = m_menu.addAction(tr("&New Theme from Visible Layers..."));
    create->setObjectName(QStringLiteral("actNewTheme"));
    connect(create, &QAction::triggered, this, [this] { Guard(&m_window, [this] { NewTheme(); }); });
    m_menu.addSeparator();
    m_names->clear();
    m_deletions->clear();
    const auto themes = MapThemes(m_session->Document().Database()).All();
    for (const MapThemes::Theme& theme : themes) {
        const auto add = [&](QMenu& menu, void (ThemeActions::*command)(qint32)) {
            connect(
                menu.addAction(NameInMenu(theme.name)), &QAction::triggered, this,
                [=, this, id = theme.id] { Guard(&m_window, [&] { (this->*command)(id); }); });
        };
        add(m_menu, &ThemeActions::Open);
        add(*m_names, &ThemeActions::Rename);
        add(*m_deletions, &ThemeActions::Delete);
    }
    AddThemes(!themes.empty());
}

void ThemeActions::AddThemes(bool hasThemes)
{
    if (!hasThemes)
        m_menu.addAction(tr("No themes yet"))->setEnabled(false);
    m_menu.addSeparator();
    for (QMenu* menu : {m_names, m_deletions}) {
        m_menu.addMenu(menu);
        menu->setEnabled(hasThemes);
    }
}

void ThemeActions::NewTheme()
{
    MapThemes themes(m_session->Document().Database());
    if (!themes.HasVisibleLayers()) {
        QMessageBox::information(&m_window, tr("New Theme"), tr("No layer of this map is visible."));
        return;
    }
    const std::optional<QString> name = AskForName(tr("New Theme"));
    if (!name || !MayReplace(*name))
        return;
    themes.Prepare();
    qint32 themeID = 0;
    m_session->Shell().RecordStep([&] {
        themeID = themes.StoreVisibleLayers(*name);
        return tr("New Theme \"%1\"").arg(NameInStep(*name));
    });
    Open(themeID);
}

std::optional<QString> ThemeActions::AskForName(const QString& title, const QString& name)
{
    while (true) {
        const PromptAnswer answer
            = m_session->Client().PromptText({.title = title, .defaultText = name, .width = NameWidth});
        if (!answer.accepted)
            return std::nullopt;
        if (const QString entered = answer.text.trimmed(); !entered.isEmpty())
            return entered;
        QMessageBox::information(&m_window, title, tr("Enter a name."));
    }
}

bool ThemeActions::MayReplace(const QString& name)
{
    return !MapThemes(m_session->Document().Database()).Find(name)
        || Confirm(
            m_window, tr("New Theme"),
            tr("The theme \"%1\" already exists. Replace its layers with the visible layers?")
                .arg(NameInText(name)));
}

void ThemeActions::Rename(qint32 themeID)
{
    const MapThemes themes(m_session->Document().Database());
    const QString before = themes.NameOf(themeID);
    const std::optional<QString> name = AskForName(tr("Rename Theme"), before);
    if (!name || *name == before)
        return;
    if (themes.Find(*name)) {
        QMessageBox box(
            QMessageBox::Information, tr("Rename Theme"),
            tr("There is already a theme \"%1\".").arg(NameInText(*name)), QMessageBox::Ok, &m_window);
        box.setObjectName(QStringLiteral("dlgThemeName"));
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    StoreName(themeID, *name);
}

// The title of an editor has the name from when it was opened.
void ThemeActions::StoreName(qint32 themeID, const QString& name)
{
    const bool isShown = m_control.IsShown(EditorIDOf(themeID));
    if (!m_control.Close(EditorIDOf(themeID)))
        return;
    MapThemes themes(m_session->Document().Database());
    m_session->Shell().RecordStep([&] {
        const QString before = themes.NameOf(themeID);
        themes.Rename(themeID, name);
        return tr("Rename Theme \"%1\"").arg(NameInStep(before));
    });
    if (isShown)
        Open(themeID);
}

void ThemeActions::Delete(qint32 themeID)
{
    MapThemes themes(m_session->Document().Database());
    const QString name = themes.NameOf(themeID);
    const QString question = tr("Delete the theme \"%1\"? Its layers stay in the map.").arg(NameInText(name));
    if (!Confirm(m_window, tr("Delete Theme"), question) || !m_control.Close(EditorIDOf(themeID)))
        return;
    m_session->Shell().RecordStep([&] {
        themes.Remove(themeID);
        return tr("Delete Theme \"%1\"").arg(NameInStep(name));
    });
}

QString ThemeActions::ThemeNameOf(const QString& editorID) const
{
    const std::optional<qint32> themeID = ThemeOf(editorID);
    return themeID ? MapThemes(m_session->Document().Database()).NameOf(*themeID) : QString();
}

// A user who makes a layer in a theme's list expects to find it in that list.
void ThemeActions::AddToTheme(const QString& editorID, qint32 layerID)
{
    const std::optional<qint32> themeID = ThemeOf(editorID);
    if (!themeID)
        return;
    MapThemes themes(m_session->Document().Database());
    themes.AddLayer(*themeID, layerID);
    m_open[*themeID] = Stored(*themeID);
    m_control.Show(editorID, std::make_shared<ThemeFilter>(m_open[*themeID].layers));
}

ThemeActions::OpenTheme ThemeActions::Stored(qint32 themeID) const
{
    const MapThemes themes(m_session->Document().Database());
    return {themes.NameOf(themeID), themes.LayersOf(themeID)};
}

// Undo and redo may change themes whose editors are open.
void ThemeActions::FollowHistory()
{
    std::vector<qint32> changed;
    for (const auto& [themeID, known] : m_open) {
        if (m_control.IsShown(EditorIDOf(themeID)) && Stored(themeID) != known)
            changed.push_back(themeID);
    }
    for (const qint32 themeID : changed)
        ShowAgain(themeID);
}

// The title of an editor has the name from when it was opened; its list can change while it is open.
void ThemeActions::ShowAgain(qint32 themeID)
{
    const QString editorID = EditorIDOf(themeID);
    const OpenTheme now = Stored(themeID);
    const bool hasNewName = std::exchange(m_open[themeID], now).name != now.name;
    if (!hasNewName)
        m_control.Show(editorID, std::make_shared<ThemeFilter>(now.layers));
    else if (m_control.Close(editorID) && !now.name.isEmpty())
        Open(themeID);
}

} // namespace Orvane
