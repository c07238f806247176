// SPDX-License-Identifier: MIT
#include "shell/actions/RenderingActions.h"

#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/dialogs/RenderingDialog.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QAction>
#include <QColorDialog>
#include <QMenu>
#include <QPointer>
#include <QSet>

#include <algorithm>

namespace Orvane {

namespace {

bool IsLayer(qint32 layerID, const MapLayer& layer)
{
    return layer.layerID == layerID;
}

} // namespace

RenderingActions::RenderingActions(QWidget& window, QMenu& menu) : m_window(window)
{
    QAction* rendering = Add(
        menu, "actLayerRendering", tr("Layer &Rendering..."),
        tr("Choose the attributes that label and colour the features of a layer"),
        [this] { AskForRenderings(m_session->Shell().ChosenLayers()); });
    Add(menu, "actMapBackground", tr("Map &Background..."), tr("Choose the colour under all layers"),
        [this] { AskForBackground(); });
    connect(&menu, &QMenu::aboutToShow, this, [this, rendering] {
        Guard(&m_window, [&] { rendering->setEnabled(!LayersToRender().empty()); });
    });
}

void RenderingActions::Use(MapSession& session)
{
    m_session = &session;
    session.Shell().AddLayerCommand(
        {QStringLiteral("LayerRendering"), tr("Layer Rendering..."),
         [this](const std::vector<qint32>& layerIDs) { return WhyNoRendering(layerIDs); },
         [this](const std::vector<qint32>& layerIDs) { AskForRenderings(layerIDs); }});
}

std::vector<MapLayer> RenderingActions::LayersToRender() const
{
    QSet<qint32> rasters; // also those that cannot be read
    for (const LayerSource& source : m_session->Document().Sources()) {
        if (source.kind == DataKind::Raster)
            rasters.insert(source.layerID);
    }
    std::vector<MapLayer> layers = m_session->Layers();
    std::erase_if(layers, [&](const MapLayer& layer) { return rasters.contains(layer.layerID); });
    return layers;
}

QString RenderingActions::WhyNoRendering(const std::vector<qint32>& layerIDs) const
{
    const bool areRasters = std::all_of(layerIDs.begin(), layerIDs.end(), [this](qint32 layerID) {
        const std::optional<LayerSource> source = m_session->Document().SourceOf(layerID);
        return source && source->kind == DataKind::Raster;
    });
    return areRasters ? tr("A raster has no attributes, and so no labels and classes.") : QString();
}

QAction* RenderingActions::Add(
    QMenu& menu, const char* name, const QString& text, const QString& tip, std::function<void()> command)
{
    QAction* action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, command = std::move(command)] {
        Guard(&m_window, command);
    });
    return action;
}

// chosen: the first of these that has something to choose is shown first; may be empty.
void RenderingActions::AskForRenderings(const std::vector<qint32>& chosen)
{
    MapSession& session = *m_session;
    const std::vector<MapLayer> layers = LayersToRender();
    if (layers.empty())
        return;
    RenderingDialog dialog(session.Document(), layers, &m_window);
    if (const auto first
        = std::find_first_of(chosen.begin(), chosen.end(), layers.begin(), layers.end(), IsLayer);
        first != chosen.end())
        dialog.Choose(*first);
    const QPointer alive(m_session); // the map may be saved under another name while it asks
    if (dialog.exec() != QDialog::Accepted || !alive)
        return;
    const std::map<qint32, LayerRendering> changes = dialog.Changes();
    if (changes.empty())
        return;
    session.Shell().RecordStep([&] {
        Transaction transaction(session.Document().Database());
        for (const auto& [layerID, rendering] : changes)
            session.Document().Renderings().Set(layerID, rendering);
        transaction.Commit();
        return tr("Layer Rendering");
    });
    session.FollowRenderings();
}

void RenderingActions::AskForBackground()
{
    const QPointer alive(m_session);
    MapDocument& document = m_session->Document();
    const QColor before = document.Background();
    QColorDialog dialog(before, &m_window);
    dialog.setObjectName(QStringLiteral("dlgMapBackground"));
    dialog.setWindowTitle(tr("Map Background"));
    if (dialog.exec() != QDialog::Accepted || !alive || dialog.selectedColor() == before)
        return;
    m_session->Shell().RecordStep([&] {
        document.SetBackground(dialog.selectedColor());
        return tr("Map Background");
    });
}

} // namespace Orvane
