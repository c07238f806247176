// SPDX-License-Identifier: MIT
#include "shell/tools/ToolActions.h"

#include "hostkit/undo/UndoHistory.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/data/SourceAttributes.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/ReadingBound.h"
#include "shell/features/FeatureMover.h"
#include "shell/map/MapSession.h"
#include "shell/tools/IdentifyPanel.h"
#include "shell/tools/RasterTexts.h"
#include "shell/tools/StatusText.h"
#include "shell/window/RunWithProgress.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

namespace Orvane {

namespace {

constexpr QRgb SelectedColour = 0xffffc400;
constexpr QRgb IdentifiedColour = 0xffe0457b;

std::vector<FeatureAttribute>
AttributesOf(const IdentifyQuestion& question, const std::vector<LayerSource>& sources, Progress& progress)
{
    const auto source = std::find_if(sources.begin(), sources.end(), [&](const LayerSource& entry) {
        return entry.layerID == question.key.layerID;
    });
    if (source == sources.end())
        return {};
    progress.SetSubject(source->path);
    if (question.raster)
        return ValuesAsAttributes(question.raster->ValuesAt(question.place));
    return SourceAttributes(*source).OfFeature(question.key.featureID);
}

// What cannot be read keeps the user from no other answer.
std::vector<FeatureAttribute> AttributesOrReason(
    const IdentifyQuestion& question, const std::vector<LayerSource>& sources, Progress& progress)
{
    try {
        return AttributesOf(question, sources, progress);
    } catch (const RunTimeError& error) {
        progress.StopIfCancelled();
        return {{ToolActions::tr("Cannot be read"), error.Description(), true}};
    }
}

std::vector<std::vector<FeatureAttribute>> AttributesOf(
    const std::vector<IdentifyQuestion>& questions, const std::vector<LayerSource>& sources,
    Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    std::vector<std::vector<FeatureAttribute>> attributes;
    attributes.reserve(questions.size());
    for (const IdentifyQuestion& question : questions) {
        progress.StopIfCancelled();
        attributes.push_back(AttributesOrReason(question, sources, progress));
    }
    return attributes;
}

} // namespace

struct ToolActions::Command {
    const char* objectName;
    IconName icon;
    const char* text; // of context ToolActions, like tip
    const char* tip;
    Qt::Key key; // with Ctrl
};

ToolActions::ToolActions(QMainWindow& window, MapCanvas& canvas, QMenu& menu, QToolBar& toolBar)
    : m_window(window), m_canvas(canvas), m_menu(menu), m_toolBar(toolBar),
      m_selected(canvas, SelectedColour), m_identified(canvas, IdentifiedColour), m_hover(canvas),
      m_zoom(canvas),
      m_identify(
          canvas,
          [this](const std::vector<IdentifyQuestion>& questions) { return ReadAttributes(questions); }),
      m_select(canvas, m_selection), m_measureLine(canvas, MeasureTool::Kind::Line),
      m_measureArea(canvas, MeasureTool::Kind::Area),
      m_move(
          canvas,
          {[this](const FeatureKey& key) { FeatureMover(*m_session, m_window).Check(key); },
           [this](const FeatureKey& key, QPointF offset) {
               FeatureMover(*m_session, m_window).Move(key, offset);
           }}),
      m_panel(new IdentifyPanel(&window)), m_status(new StatusText(window.statusBar())),
      m_group(new QActionGroup(this))
{
    m_status->setObjectName(QStringLiteral("lblToolStatus"));
    window.statusBar()->addWidget(m_status, 1);
    window.addDockWidget(Qt::RightDockWidgetArea, m_panel);
    m_panel->hide();
    AddTools();
    AddToggles();
    ConnectTools();
}

ToolActions::~ToolActions()
{
    m_canvas.SetTool(nullptr);
    m_canvas.SetShiftDragTool(nullptr);
}

void ToolActions::Use(MapSession& session)
{
    m_session = &session;
    m_selection.Clear();
    m_panel->Clear();
    m_status->SetText({});
    SetSystem(session.Document().System());
    connect(&session.Shell().History(), &UndoHistory::Changed, this, &ToolActions::ForgetMove);
}

void ToolActions::SetSystem(const QString& system)
{
    m_measureLine.SetSystem(system);
    m_measureArea.SetSystem(system);
}

// The status text of a move is no longer true when the move is undone.
void ToolActions::ForgetMove()
{
    if (m_canvas.Tool() == &m_move)
        m_move.Begin();
}

void ToolActions::AddTools()
{
    AddTool(
        {"actPan", IconName::Pan, QT_TR_NOOP("&Pan and Zoom"),
         QT_TR_NOOP("Drag the map, zoom with the wheel"), Qt::Key_1},
        nullptr);
    AddTool(
        {"actZoomRectangle", IconName::ZoomRectangle, QT_TR_NOOP("&Zoom by Rectangle"),
         QT_TR_NOOP("Zoom to a rectangle that you draw; with every other tool, hold Shift and drag"),
         Qt::Key_8},
        &m_zoom);
    AddTool(
        {"actIdentify", IconName::Identify, QT_TR_NOOP("&Identify"),
         QT_TR_NOOP("Show the attributes of features of enquirable layers"), Qt::Key_2},
        &m_identify);
    AddTool(
        {"actSelect", IconName::Select, QT_TR_NOOP("&Select"),
         QT_TR_NOOP("Select features of selectable layers by a click or a rectangle; Ctrl adds"), Qt::Key_3},
        &m_select);
    AddTool(
        {"actMeasureLine", IconName::MeasureLine, QT_TR_NOOP("Measure &Length"),
         QT_TR_NOOP("Measure a line; its vertices snap to layers with snapping turned on"), Qt::Key_4},
        &m_measureLine);
    AddTool(
        {"actMeasureArea", IconName::MeasureArea, QT_TR_NOOP("Measure &Area"),
         QT_TR_NOOP("Measure an area; its vertices snap to layers with snapping turned on"), Qt::Key_5},
        &m_measureArea);
    AddTool(
        {"actMoveFeature", IconName::MoveFeature, QT_TR_NOOP("&Move Feature"),
         QT_TR_NOOP("Move a feature of an unlocked layer by dragging it"), Qt::Key_6},
        &m_move);
    m_group->actions().first()->setChecked(true);
    m_canvas.SetShiftDragTool(&m_zoom);
}

QAction* ToolActions::AddCommand(const Command& command)
{
    auto* action = new QAction(ShellIcon(command.icon, m_window.palette()), tr(command.text), &m_window);
    action->setObjectName(QLatin1String(command.objectName));
    action->setShortcut(Qt::CTRL | command.key);
    action->setStatusTip(tr(command.tip));
    action->setToolTip(QStringLiteral("<b>%1</b> (%2)<br>%3")
                           .arg(
                               action->iconText().toHtmlEscaped(),
                               action->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped(),
                               tr(command.tip).toHtmlEscaped()));
    action->setCheckable(true);
    m_menu.addAction(action);
    m_toolBar.addAction(action);
    return action;
}

void ToolActions::AddTool(const Command& command, MapTool* tool)
{
    QAction* action = AddCommand(command);
    m_group->addAction(action);
    connect(action, &QAction::triggered, this, [this, tool] {
        m_status->SetText({});
        m_canvas.SetTool(tool);
    });
    if (!tool)
        return;
    tool->setObjectName(action->objectName());
    connect(tool, &MapTool::StatusChanged, m_status, &StatusText::SetText);
}

void ToolActions::AddToggles()
{
    m_menu.addSeparator();
    m_toolBar.addSeparator();
    QAction* hover = AddCommand(
        {"actPointOut", IconName::PointOut, QT_TR_NOOP("&Highlight Under Pointer"),
         QT_TR_NOOP("Highlight features of hitable layers under the pointer with any tool"), Qt::Key_7});
    connect(hover, &QAction::toggled, this, [this](bool on) { m_hover.SetOn(on); });
    m_menu.addSeparator();
    QAction* panel = m_panel->toggleViewAction();
    panel->setObjectName(QStringLiteral("actFeatureAttributes"));
    panel->setStatusTip(tr("Show or hide the panel with the attributes of identified features"));
    m_menu.addAction(panel);
}

void ToolActions::ConnectTools()
{
    connect(&m_hover, &HoverHighlight::StatusChanged, this, [this](const QString& text) {
        const MapTool* tool = m_canvas.Tool();
        if (tool != &m_measureLine && tool != &m_measureArea) // these show their result there
            m_status->SetText(text);
    });
    connect(&m_identify, &IdentifyTool::Identified, this, &ToolActions::ShowIdentified);
    connect(&m_selection, &FeatureSelection::Changed, this, [this] { m_selected.Show(m_selection.Keys()); });
    connect(&m_canvas, &MapCanvas::LayersChanged, this, [this] { m_selection.Keep(m_canvas.Layers()); });
    connect(m_panel, &IdentifyPanel::CurrentChanged, this, [this](const FeatureKey& key) {
        m_identified.Show({key});
    });
    connect(m_panel, &IdentifyPanel::NothingCurrent, this, [this] { m_identified.Clear(); });
}

void ToolActions::ShowIdentified(const std::vector<IdentifiedFeature>& features)
{
    m_panel->Show(features, m_status->Text());
    if (features.empty())
        return;
    m_panel->show();
    m_panel->raise();
}

std::vector<std::vector<FeatureAttribute>>
ToolActions::ReadAttributes(const std::vector<IdentifyQuestion>& questions)
{
    return ReadOrGiveUp(
        &m_window, tr("Reading attributes"),
        [questions, sources = m_session->Document().Sources()](Progress& progress) {
            return AttributesOf(questions, sources, progress);
        });
}

} // namespace Orvane
