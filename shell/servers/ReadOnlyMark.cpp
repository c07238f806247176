// SPDX-License-Identifier: MIT
#include "shell/servers/ReadOnlyMark.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

// Those whose state depends on nothing else. Others are refused by the map itself, with the same reason.
constexpr std::array ChangingCommands{"actOpenData",  "actOpenRaster",   "actMapBackground",
                                      "actMapSystem", "actImportScheme", "actNewTheme"};

QString WhyReadOnly()
{
    return QCoreApplication::translate(
        "ReadOnlyMark",
        "You may read this map, but not change it. Its owner can give you the right to edit it.");
}

bool IsChanging(const QAction& action)
{
    return std::any_of(ChangingCommands.begin(), ChangingCommands.end(), [&](const char* name) {
        return action.objectName() == QLatin1String(name);
    });
}

void AddChanging(const QList<QAction*>& actions, std::vector<QAction*>& found)
{
    for (QAction* action : actions) {
        if (IsChanging(*action))
            found.push_back(action);
        if (const auto* menu = action->menu())
            AddChanging(menu->actions(), found);
    }
}

} // namespace

ReadOnlyMark::ReadOnlyMark(QMainWindow& window)
    : m_window(window), m_label(new QLabel(QCoreApplication::translate("ReadOnlyMark", "Read-only")))
{
    m_label->setObjectName(QStringLiteral("lblReadOnly"));
    m_label->setToolTip(WhyReadOnly());
    m_label->hide();
    window.statusBar()->addPermanentWidget(m_label);
}

void ReadOnlyMark::Show(bool isReadOnly)
{
    m_label->setVisible(isReadOnly);
    for (const Command& command : m_disabled) {
        if (!command.action)
            continue;
        command.action->setEnabled(true);
        command.action->setStatusTip(command.statusTip);
    }
    m_disabled.clear();
    if (!isReadOnly)
        return;
    std::vector<QAction*> commands;
    AddChanging(m_window.menuBar()->actions(), commands);
    m_disabled.reserve(commands.size());
    for (QAction* action : commands) {
        m_disabled.push_back({action, action->statusTip()});
        action->setEnabled(false);
        action->setStatusTip(WhyReadOnly());
    }
}

} // namespace Orvane
