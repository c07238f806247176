// SPDX-License-Identifier: MIT
#include "shell/help/HelpActions.h"

#include "mapkit/common/Guard.h"
#include "shell/help/GuidePlaces.h"
#include "shell/help/GuideWindow.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>

namespace Orvane {

namespace {

// blocking: the window that blocks the others; nullptr for none.
const QWidget* PlaceOfUser(const QWidget* blocking)
{
    const QWidget* focus = QApplication::focusWidget();
    if (blocking)
        return focus && blocking->isAncestorOf(focus) ? focus : blocking;
    return focus ? focus : QApplication::activeWindow();
}

} // namespace

HelpActions::HelpActions(QWidget& window, QMenu& menu, QAction& about) : m_window(window)
{
    auto* action = new QAction(tr("&Guide"), this);
    action->setObjectName(QStringLiteral("actGuide"));
    action->setStatusTip(tr("Read about the window or the tool that is in use"));
    action->setShortcut(Qt::Key_F1);
    action->setShortcutContext(Qt::ApplicationShortcut);
    menu.insertAction(&about, action);
    connect(action, &QAction::triggered, this, [this] { Guard(&m_window, [this] { ShowGuide(); }); });
    connect(&about, &QAction::triggered, this, [this] { Guard(&m_window, [this] { ShowAbout(); }); });
    qApp->installEventFilter(this);
}

HelpActions::~HelpActions()
{
    delete m_guide.data();
}

bool HelpActions::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !object->isWidgetType())
        return false;
    QWidget* blocking = QApplication::activeModalWidget();
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1 || !blocking)
        return false;
    Guard(blocking, [this] { ShowGuide(); });
    return true;
}

// The section is looked for first: the guide takes the focus.
void HelpActions::ShowGuide()
{
    QWidget* blocking = QApplication::activeModalWidget();
    const QWidget* place = PlaceOfUser(blocking);
    if (m_guide && m_guide->isVisible() && place && place->window() == m_guide)
        return; // F1 in the guide itself
    const QString section = GuidePlaces::SectionAt(place);
    GuideWindow& guide = GuideFor(blocking);
    guide.show();
    guide.raise();
    guide.activateWindow();
    guide.ShowSection(section);
}

void HelpActions::ShowAbout()
{
    QMessageBox::about(
        &m_window, tr("About Orvane"),
        tr("<h3>Orvane %1</h3><p>A small desktop map program, the host of the Orvane layer control.</p>")
            .arg(QCoreApplication::applicationVersion()));
}

// A window that blocks the others leaves only its own children in reach.
GuideWindow& HelpActions::GuideFor(QWidget* blocking)
{
    if (!m_guide || m_guide->parentWidget() != blocking) {
        delete m_guide.data();
        m_guide = new GuideWindow(blocking);
    }
    return *m_guide;
}

} // namespace Orvane
