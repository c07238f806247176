// SPDX-License-Identifier: MIT
#include "shell/view/ViewActions.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/features/FeatureBounds.h"
#include "shell/features/FeatureSelection.h"
#include "shell/map/MapSession.h"
#include "shell/window/Icons.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

#include <utility>

namespace Orvane {

namespace {

// Adds it to the menu or the bar, after that action.
template <typename Bar> void InsertBehind(Bar& bar, const QAction& behind, QAction* action)
{
    const QList<QAction*> all = bar.actions();
    bar.insertAction(all.value(all.indexOf(&behind) + 1), action);
}

// tip: what the command does.
void ShowWhyNot(QAction& action, const QString& whyNot)
{
    const QString tip = whyNot.isEmpty() ? action.data().toString() : whyNot;
    action.setEnabled(whyNot.isEmpty());
    action.setStatusTip(tip);
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(QStringLiteral("<b>%1</b> (%2)<br>%3")
                          .arg(action.iconText().toHtmlEscaped(), keys.toHtmlEscaped(), tip.toHtmlEscaped()));
}

} // namespace

struct ViewActions::Command {
    const char* objectName;
    IconName icon;
    const char* text; // of context ViewActions, like tip
    const char* tip;
    QKeySequence keys;
};

// The last comes first: each goes directly behind that action.
ViewActions::ViewActions(
    QMainWindow& window, MapCanvas& canvas, const FeatureSelection& selection, const Place& place)
    : m_window(window), m_canvas(canvas), m_selection(selection), m_history(canvas)
{
    m_next = Add(
        place,
        {"actNextView", IconName::NextView, QT_TR_NOOP("&Next View"),
         QT_TR_NOOP("Show the view from which you went back"), Qt::ALT | Qt::Key_Right});
    m_previous = Add(
        place,
        {"actPreviousView", IconName::PreviousView, QT_TR_NOOP("&Previous View"),
         QT_TR_NOOP("Show the part of the map that was shown before"), Qt::ALT | Qt::Key_Left});
    m_selected = Add(
        place,
        {"actZoomSelection", IconName::ZoomSelection, QT_TR_NOOP("Zoom to &Selection"),
         QT_TR_NOOP("Show all selected features"), Qt::CTRL | Qt::Key_J});
    m_layers = Add(
        place,
        {"actZoomLayer", IconName::ZoomLayer, QT_TR_NOOP("Zoom to &Layer"),
         QT_TR_NOOP("Show all features of the layers that are chosen in the layer control"),
         Qt::CTRL | Qt::Key_L});
    place.menu.setToolTipsVisible(true); // they tell why a command is grey
    Connect(selection);
    ShowWhatIsPossible();
}

QAction* ViewActions::Add(const Place& place, const Command& command)
{
    auto* action = new QAction(ShellIcon(command.icon, m_window.palette()), tr(command.text), &m_window);
    action->setObjectName(QLatin1String(command.objectName));
    action->setShortcut(command.keys);
    action->setData(tr(command.tip));
    InsertBehind(place.menu, place.behind, action);
    InsertBehind(place.bar, place.behind, action);
    return action;
}

void ViewActions::Connect(const FeatureSelection& selection)
{
    connect(m_layers, &QAction::triggered, this, [this] { Guard(&m_window, [this] { ZoomToLayers(); }); });
    connect(m_selected, &QAction::triggered, this, [this] {
        m_canvas.ZoomTo(BoundsOf(m_canvas.Layers(), m_selection.Keys()));
    });
    connect(m_previous, &QAction::triggered, &m_history, &ViewHistory::GoBack);
    connect(m_next, &QAction::triggered, &m_history, &ViewHistory::GoForward);
    connect(&m_canvas, &MapCanvas::BackPressed, &m_history, &ViewHistory::GoBack);
    connect(&m_canvas, &MapCanvas::ForwardPressed, &m_history, &ViewHistory::GoForward);
    connect(&m_history, &ViewHistory::Changed, this, &ViewActions::ShowWhatIsPossible);
    connect(&selection, &FeatureSelection::Changed, this, &ViewActions::ShowWhatIsPossible);
    connect(&m_canvas, &MapCanvas::LayersChanged, this, &ViewActions::ShowWhatIsPossible);
}

void ViewActions::Use(MapSession& session)
{
    m_session = &session;
    connect(&session, &MapSession::ChosenLayersChanged, this, &ViewActions::ShowWhatIsPossible);
    connect(
        &session, &MapSession::LayersRead, this, [this] { Guard(&m_window, [this] { FollowSystem(); }); });
    m_system = session.Document().System();
    m_history.Clear();
}

void ViewActions::FollowSystem()
{
    const QString system = m_session->Document().System();
    if (std::exchange(m_system, system) != system)
        m_history.Restart();
}

void ViewActions::ShowWhatIsPossible()
{
    ShowWhyNot(*m_layers, WhyNotLayers());
    ShowWhyNot(*m_selected, WhyNotSelection());
    ShowWhyNot(*m_previous, m_history.CanGoBack() ? QString() : tr("There is no earlier view."));
    ShowWhyNot(*m_next, m_history.CanGoForward() ? QString() : tr("There is no later view."));
}

void ViewActions::ZoomToLayers()
{
    if (m_session)
        m_session->ZoomTo(m_session->Shell().ChosenLayers());
}

QString ViewActions::WhyNotLayers() const
{
    if (!m_session || m_session->Shell().ChosenLayers().empty())
        return tr("Choose a layer in the layer control first.");
    return m_session->HasFeatures(m_session->Shell().ChosenLayers())
        ? QString()
        : tr("The map has no features of the chosen layers.");
}

QString ViewActions::WhyNotSelection() const
{
    return m_selection.Keys().empty() ? tr("Select features on the map first.") : QString();
}

} // namespace Orvane
