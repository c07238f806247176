// SPDX-License-Identifier: MIT
#include "shell/map/MapSession.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/StartupSchemes.h"
#include "hostkit/undo/UndoHistory.h"
#include "hostkit/windows/LongWork.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/drawing/ReprojectedView.h"
#include "mapkit/output/PageSettings.h"
#include "shell/map/SourceText.h"
#include "shell/window/RunWithProgress.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Orvane {

namespace {

constexpr std::chrono::milliseconds MarkDelay{150};

QString StartupFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return folder.filePath(QStringLiteral("startup.orvane"));
}

} // namespace

MapSession::MapSession(
    std::unique_ptr<MapDocument> document, MapCanvas& canvas, QWidget& mainWindow, CallTrace* trace)
    : m_canvas(canvas), m_mainWindow(mainWindow), m_document(std::move(document)),
      m_layers(*m_document, m_services, canvas.logicalDpiX() / MillimetresPerInch),
      m_client(m_document->Database(), m_services, m_states, mainWindow), m_follower(*m_document, mainWindow)
{
    if (trace)
        m_traced = std::make_unique<TracingClient>(m_client, *trace);
    m_client.SetStartupFile(StartupFile());
    m_client.SetAppliesSchemeAtOpening(true);
    m_client.SetLayerMaker(
        [this](QWidget* owner) { return LayerCreation(*m_document, m_client, m_questions).Ask(owner); });
    m_client.SetMapScale([this] { return m_document->HasLayers() ? m_canvas.ScaleDenominator() : 0; });
    m_client.SetLayerSource([this](qint32 layerID) { return SourceText(m_document->SourceOf(layerID)); });
    m_client.SetChoiceFollower([this] { emit ChosenLayersChanged(); });
    AddCommands();
    Connect();
}

MapSession::~MapSession() = default;

void MapSession::AddCommands()
{
    m_client.AddLayerCommand(
        {QStringLiteral("ZoomToLayer"), tr("Zoom to Layer"),
         [this](const std::vector<qint32>& layerIDs) {
             return HasFeatures(layerIDs) ? QString() : tr("The map has no features of these layers.");
         },
         [this](const std::vector<qint32>& layerIDs) { ZoomTo(layerIDs); }});
}

void MapSession::ZoomTo(const std::vector<qint32>& layerIDs)
{
    m_canvas.ZoomTo(BoundsOf(layerIDs));
}

Box MapSession::BoundsOf(const std::vector<qint32>& layerIDs) const
{
    const QSet<qint32> wanted(layerIDs.begin(), layerIDs.end());
    Box bounds;
    for (const MapLayer& layer : m_layers.All()) {
        if (wanted.contains(layer.layerID))
            bounds.Add(layer.Bounds());
    }
    return bounds;
}

IStyleEditorClient& MapSession::Client()
{
    return m_traced ? static_cast<IStyleEditorClient&>(*m_traced) : m_client;
}

// Not a separate undo step: undoing the import of the data also undoes these values.
void MapSession::BeginSchemes()
{
    using Cancel = LongWork::Cancel;
    const LongWork work(m_document->Database(), tr("Loading the schemes"), &m_mainWindow, Cancel::Impossible);
    StartupSchemes::Load(m_document->Database(), StartupFile());
    LayerSchemes schemes(m_document->Database());
    schemes.Load(schemes.Current());
    schemes.Save(schemes.Current());
}

std::optional<QString> MapSession::ApplySchemeAtOpening()
{
    return m_client.ApplySchemeAtOpening();
}

QString MapSession::ReadAndShow(View view, const SourceContents& known)
{
    m_client.InvalidateLayerNames();
    const QString before = std::exchange(m_system, m_document->System());
    m_chosenReadings = m_document->ChosenReadings();
    m_renderings = m_document->Renderings().All();
    const bool isReprojected = before != m_system;
    if (isReprojected)
        m_layers.DropAllFeatures();
    ReadRows();
    m_follower.Follow();
    SourceContents contents = known;
    const QString givenUp = ReadMissing(contents);
    m_layers.TakeFeatures(contents);
    if (view == View::All)
        ShowAll();
    else if (isReprojected)
        ShowInSystem(before);
    else
        Show();
    QStringList problems = {contents.FailureText(), givenUp};
    emit LayersRead();
    problems.removeAll(QString());
    return problems.join(QLatin1Char('\n'));
}

// Without Cancel: what changed the rows is stored already.
void MapSession::ReadRows()
{
    using Cancel = LongWork::Cancel;
    const LongWork work(m_document->Database(), tr("Reading the map"), &m_mainWindow, Cancel::Impossible);
    m_layers.DropFeaturesOfOtherData();
    m_layers.ReadAll();
    m_canvas.SetBackground(m_document->Background());
    m_isRead = true;
}

QString MapSession::ReadMissing(SourceContents& contents) const
{
    std::vector<LayerSource> missing = m_layers.MissingSources();
    std::erase_if(missing, [&](const LayerSource& source) { return contents.Has(source.layerID); });
    try {
        contents.Add(ReadOrGiveUp(
            &m_mainWindow, tr("Reading map data"),
            [missing = std::move(missing), system = m_document->System()](Progress& progress) {
                return ReadSources(missing, system, progress);
            }));
    } catch (const ReadingGivenUp& error) {
        return error.Description();
    }
    return {};
}

void MapSession::TakeFeatures(const SourceContents& contents)
{
    m_layers.TakeFeatures(contents);
    Show();
}

// The picture has found damage in rasters that could be opened.
void MapSession::TakeFailures()
{
    if (m_canvas.Picture().IsBusy()) // its end leads here again
        return;
    QSet<qint32> layerIDs;
    SourceContents toTell;
    for (const auto& [layerID, reason] : std::exchange(m_failures, {})) {
        layerIDs.insert(layerID);
        const std::optional<LayerSource> source = m_document->SourceOf(layerID);
        if (source && m_damaged.emplace(source->path, source->ogrLayer).second)
            toTell.failures.emplace(layerID, reason);
    }
    m_layers.LeaveOut(layerIDs);
    Show();
    if (!toTell.failures.empty())
        emit DataFailed(toTell.FailureText());
}

void MapSession::Connect()
{
    m_markSoon.setSingleShot(true);
    m_markSoon.setInterval(MarkDelay);
    connect(&m_markSoon, &QTimer::timeout, this, [this] { Guard(&m_mainWindow, [this] { MarkNames(); }); });
    connect(&m_canvas, &MapCanvas::ViewChanged, &m_markSoon, qOverload<>(&QTimer::start));
    connect(&m_follower, &SourceFollower::Read, this, [this](const SourceContents& contents) {
        LongWork::RunAfter(this, [this, contents] { Guard(&m_mainWindow, [&] { TakeFeatures(contents); }); });
    });
    connect(
        &m_attributes, &AttributeLoader::Loaded, this,
        [this](const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column) {
            Guard(&m_mainWindow, [&] {
                m_layers.TakeAttribute(request, std::move(column));
                m_canvas.SetLayers(m_layers.All(), MetresPerUnit(m_document->System()));
            });
        });
    m_followSoon.setSingleShot(true);
    connect(&m_client.History(), &UndoHistory::Changed, &m_followSoon, qOverload<>(&QTimer::start));
    connect(&m_followSoon, &QTimer::timeout, this, [this] {
        LongWork::RunAfter(this, [this] {
            Guard(&m_mainWindow, [this] {
                FollowSystems();
                FollowRenderings();
            });
        });
    });
    connect(&m_follower, &SourceFollower::MapFileGone, this, &MapSession::MapFileGone);
    ConnectPicture();
    const HostNotifications& events = m_client.Notifications();
    connect(&events, &HostNotifications::LayersChanged, this, &MapSession::DrawAgain);
    connect(&m_client.History(), &UndoHistory::Changed, this, [this] { // a step may have stored another one
        Guard(&m_mainWindow, [this] { m_canvas.SetBackground(m_document->Background()); });
    });
    connect(&events, &HostNotifications::StepNotRecorded, this, &MapSession::StepNotRecorded);
    ConnectLayerNews(events);
}

void MapSession::ConnectPicture()
{
    const MapPicture& picture = m_canvas.Picture();
    m_failSoon.setSingleShot(true);
    connect(&picture, &MapPicture::LayerFailed, this, [this](qint32 layerID, const QString& reason) {
        if (!m_isShown) // a layer of the map before
            return;
        Guard(&m_mainWindow, [&] { m_failures.insert_or_assign(layerID, reason); });
        m_failSoon.start();
    });
    connect(&picture, &MapPicture::BusyChanged, this, [this](bool busy) {
        if (!busy && !m_failures.empty())
            m_failSoon.start();
    });
    connect(&m_failSoon, &QTimer::timeout, this, [this] {
        LongWork::RunAfter(this, [this] { Guard(&m_mainWindow, [this] { TakeFailures(); }); });
    });
}

// One step may create, rename or delete thousands of layers, and reports each.
void MapSession::ConnectLayerNews(const HostNotifications& events)
{
    m_readSoon.setSingleShot(true);
    connect(&m_readSoon, &QTimer::timeout, this, [this] { Guard(&m_mainWindow, [this] { ReadNews(); }); });
    const auto readSoon = [this](qint32 layerID) {
        m_newsOf.insert(layerID);
        m_readSoon.start();
    };
    connect(&events, &HostNotifications::LayerRenamed, this, readSoon);
    connect(&events, &HostNotifications::LayerDeleted, this, readSoon);
    connect(&events, &HostNotifications::LayerCreated, this, [this] {
        m_hasNewLayers = true;
        m_readSoon.start();
    });
}

// A new layer may have data: those of a source, or those from before its deletion.
void MapSession::ReadNews()
{
    const QSet<qint32> layerIDs = std::exchange(m_newsOf, {});
    if (std::exchange(m_hasNewLayers, false))
        ReadAndShow();
    else
        DrawAgain(layerIDs);
}

void MapSession::DrawAgain(const QSet<qint32>& layerIDs)
{
    if (!m_isRead) // all of them are read soon
        return;
    Guard(&m_mainWindow, [&] {
        m_layers.Read(layerIDs);
        Show();
    });
}

bool MapSession::FollowOthers(const QSet<qint32>& layerIDs)
{
    if (!HasRowsOf(layerIDs))
        return false;
    m_layers.Read(layerIDs);
    if (!HasRowsOf(layerIDs))
        return false;
    Show();
    m_client.RefreshEditors(layerIDs);
    emit OthersFollowed();
    return true;
}

bool MapSession::HasRowsOf(const QSet<qint32>& layerIDs) const
{
    const std::vector<MapLayer>& layers = m_layers.All();
    return std::count_if(
               layers.begin(), layers.end(),
               [&](const MapLayer& layer) { return layerIDs.contains(layer.layerID); })
        == layerIDs.size();
}

void MapSession::Show()
{
    m_canvas.SetLayers(m_layers.All(), MetresPerUnit(m_document->System()));
    FollowLayers();
}

void MapSession::ShowAll()
{
    m_canvas.ShowAll(m_layers.All(), MetresPerUnit(m_document->System()));
    FollowLayers();
}

// Where the middle of the view has no position in the new system, everything is shown.
void MapSession::ShowInSystem(const QString& before)
{
    const auto view = ReprojectedView(m_canvas.View(), before, m_system);
    if (!view)
        return ShowAll();
    m_canvas.ShowAt(*view, m_layers.All(), MetresPerUnit(m_system));
    FollowLayers();
}

QStringList MapSession::LayersWithoutPlace() const
{
    QStringList names;
    for (const MapLayer& layer : m_layers.All()) {
        const bool isPart = layer.features && layer.features->LeftOutCount() > 0;
        if (isPart || (layer.raster && layer.raster->Extent().IsEmpty()))
            names << layer.name;
    }
    return names;
}

// Undo and redo change systems too.
void MapSession::FollowSystems()
{
    if (!m_isRead || (m_document->System() == m_system && m_document->ChosenReadings() == m_chosenReadings))
        return;
    const QString problems = ReadAndShow();
    if (!problems.isEmpty())
        emit DataFailed(problems);
}

void MapSession::FollowRenderings()
{
    std::map<qint32, LayerRendering> before = std::exchange(m_renderings, m_document->Renderings().All());
    QSet<qint32> changed;
    for (const auto& [layerID, rendering] : m_renderings) {
        const auto known = before.extract(layerID);
        if ((known ? known.mapped() : LayerRendering()) != rendering)
            changed.insert(layerID);
    }
    for (const auto& [layerID, rendering] : before)
        changed.insert(layerID);
    if (!changed.isEmpty())
        DrawAgain(changed);
}

void MapSession::FollowLayers()
{
    m_isShown = true;
    MarkNames();
    m_attributes.Load(m_layers.MissingAttributes());
}

void MapSession::MarkNames()
{
    m_client.RefreshListedNames(
        m_states.Update(m_layers.All(), m_layers.Unreadable(), m_canvas.ScaleDenominator()));
}

} // namespace Orvane
