// SPDX-License-Identifier: MIT
#include "shell/actions/ThemeActions.h"

#include "hostkit/common/HostNotifications.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "messages/NameInText.h"
#include "shell/actions/LayerControl.h"
#include "shell/actions/ThemeFilter.h"
#include "shell/map/MapSession.h"
#include "shell/map/MapThemes.h"
#include "shell/window/Confirm.h"

#include <OrvaneShellLib/PromptRequest.h>

#include <QMenu>
#include <QMessageBox>

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
    : m_menu(menu), m_deletions(new QMenu(tr("&Delete Theme"), &menu)), m_control(control), m_window(window)
{
    m_deletions->setObjectName(QStringLiteral("menuDeleteTheme"));
    connect(&m_menu, &QMenu::aboutToShow, this, [this] { Guard(&m_window, [this] { Fill(); }); });
}

void ThemeActions::Use(MapSession& session)
{
    m_session = &session;
    ShellClient& shell = session.Shell();
    shell.SetThemeNames([this](const QString& editorID) { return ThemeNameOf(editorID); });
    connect(&shell.Notifications(), &HostNotifications::LayerCreated, this, [this, &shell](qint32 layerID) {
        Guard(&m_window, [&] { AddToTheme(shell.CreatingEditor(), layerID); });
    });
}

void ThemeActions::Open(qint32 themeID)
{
    const MapThemes themes(m_session->Document().Database());
    m_control.Show(EditorIDOf(themeID), std::make_shared<ThemeFilter>(themes.LayersOf(themeID)));
    m_session->Shell().RaiseEditor(EditorIDOf(themeID));
}

void ThemeActions::Fill()
{
    m_menu.clear();
    QAction* create = m_menu.addAction(tr("&New Theme from Visible Layers..."));
    create->setObjectName(QStringLiteral("actNewTheme"));
    connect(create, &QAction::triggered, this, [this] { Guard(&m_window, [this] { NewTheme(); }); });
    m_menu.addSeparator();
    m_deletions->clear();
    const auto themes = MapThemes(m_session->Document().Database()).All();
    for (const MapThemes::Theme& theme : themes) {
        const auto add = [&](QMenu& menu, void (ThemeActions::*command)(qint32)) {
            connect(
                menu.addAction(NameInMenu(theme.name)), &QAction::triggered, this,
                [=, this, id = theme.id] { Guard(&m_window, [&] { (this->*command)(id); }); });
        };
        add(m_menu, &ThemeActions::Open);
        add(*m_deletions, &ThemeActions::Delete);
    }
    FillDeletions(!themes.empty());
}

void ThemeActions::FillDeletions(bool hasThemes)
{
    if (!hasThemes)
        m_menu.addAction(tr("No themes yet"))->setEnabled(false);
    m_menu.addSeparator();
    m_menu.addMenu(m_deletions);
    m_deletions->setEnabled(hasThemes);
}

void ThemeActions::NewTheme()
{
    MapThemes themes(m_session->Document().Database());
    if (!themes.HasVisibleLayers()) {
        QMessageBox::information(&m_window, tr("New Theme"), tr("No layer of this map is visible."));
        return;
    }
    const std::optional<QString> name = AskForName();
    if (!name || !MayReplace(*name))
        return;
    Open(themes.StoreVisibleLayers(*name));
}

std::optional<QString> ThemeActions::AskForName()
{
    QString name;
    while (name.isEmpty()) {
        const PromptAnswer answer = m_session->Client().PromptText(
            {.title = tr("New Theme"), .defaultText = {}, .width = NameWidth});
        if (!answer.accepted)
            return std::nullopt;
        name = answer.text.trimmed();
        if (name.isEmpty())
            QMessageBox::information(&m_window, tr("New Theme"), tr("Enter a name."));
    }
    return name;
}

bool ThemeActions::MayReplace(const QString& name)
{
    return !MapThemes(m_session->Document().Database()).Find(name)
        || Confirm(
            m_window, tr("New Theme"),
            tr("The theme \"%1\" already exists. Replace its layers with the visible layers?")
                .arg(NameInText(name)));
}

void ThemeActions::Delete(qint32 themeID)
{
    MapThemes themes(m_session->Document().Database());
    const QString question
        = tr("Delete the theme \"%1\"? Its layers stay in the map.").arg(NameInText(themes.NameOf(themeID)));
    if (Confirm(m_window, tr("Delete Theme"), question) && m_control.Close(EditorIDOf(themeID)))
        themes.Remove(themeID);
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
    m_control.Show(editorID, std::make_shared<ThemeFilter>(themes.LayersOf(*themeID)));
}

} // namespace Orvane
